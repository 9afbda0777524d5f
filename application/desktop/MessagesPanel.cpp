#include "MessagesPanel.h"

#include "Texts.h"
#include "Ui/Qt/QtText.h"

#include <QMessageBox>
#include <QStyle>

namespace qev::application {

namespace {

QStyle::StandardPixmap getPicture(step::StepMessage::Severity severity)
{
    switch (severity) {
    case step::StepMessage::Severity::Warning:
        return QStyle::SP_MessageBoxWarning;
    case step::StepMessage::Severity::Error:
    case step::StepMessage::Severity::Refused:
        return QStyle::SP_MessageBoxCritical;
    }
    return QStyle::SP_MessageBoxInformation;
}

} // namespace

MessagesPanel::MessagesPanel(QWidget* parent)
    : QListWidget(parent)
{
    setUniformItemSizes(true);
    setTextElideMode(Qt::ElideRight);
    connect(this, &QListWidget::itemDoubleClicked, this, [this](QListWidgetItem const* item) {
        auto* const box = new QMessageBox(QMessageBox::NoIcon, getText("Message_Title"), item->text(),
                                          QMessageBox::NoButton, window());
        box->addButton(getText("Button_Ok"), QMessageBox::AcceptRole);
        box->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
        box->setAttribute(Qt::WA_DeleteOnClose);
        box->open();
    });
}

MessagesPanel::~MessagesPanel() = default;

void MessagesPanel::setMessages(std::vector<step::StepMessage> const& messages, std::uint64_t dropped)
{
    clear();
    for (auto const& message : messages)
        new QListWidgetItem(style()->standardIcon(getPicture(message.severity)),
                            ui::toQString(message.toString()), this);
    if (dropped > 0)
        new QListWidgetItem(getText("Message_More", {QString::number(dropped)}), this);
}

} // namespace qev::application
