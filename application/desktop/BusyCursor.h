#pragma once

#include <QApplication>

namespace qev::application {

/// Shows that the program is at work, for as long as it lives.
class BusyCursor
{
public:
    BusyCursor() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~BusyCursor() { QApplication::restoreOverrideCursor(); }
    BusyCursor(BusyCursor const&) = delete;
    BusyCursor& operator=(BusyCursor const&) = delete;
};

} // namespace qev::application
