#pragma once

#include <cstdint>
#include <QProgressDialog>

namespace qev::application {

/// Shows how far a long work is, once it takes long enough for anybody to wonder.
class OpeningProgress
{
public:
    OpeningProgress(QString const& text, QWidget* parent);

    /// Shows that \p done of \p total is done. \returns false when the user wants to stop.
    bool operator()(std::uint64_t done, std::uint64_t total);

private:
    QProgressDialog m_dialog;
};

} // namespace qev::application
