#include "Ui/Qt/QtClipboard.h"

#include "Ui/Qt/QtText.h"

#include <QApplication>
#include <QClipboard>
#include <QMimeData>

namespace qev::ui {

void QtClipboard::copy(QString const& text) { QApplication::clipboard()->setText(text); }

void QtClipboard::copy(ListBlock const& block, bool hasHeaders)
{
    auto* const clip = new QMimeData;
    clip->setText(toQString(blockAsTabSeparatedText(block)));
    clip->setHtml(toQString(blockAsHtml(block, hasHeaders)));
    QApplication::clipboard()->setMimeData(clip);
}

} // namespace qev::ui
