#pragma once

#include "HostUiQtExport.h"

#include <QWidget>

namespace qev::ui {

/// The widget of a dialog: a bare area for controls. It tells its window of each new size.
class HOSTUIQT_EXPORT QtDialog : public QWidget
{
public:
    explicit QtDialog(QWidget* parent = nullptr);
    ~QtDialog() override;

protected:
    void resizeEvent(QResizeEvent* event) override;
};

} // namespace qev::ui
