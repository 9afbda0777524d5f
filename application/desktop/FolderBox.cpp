#include "FolderBox.h"

#include "FilePath.h"
#include "Texts.h"

#include <QFileDialog>
#include <QHBoxLayout>
#include <QPushButton>

namespace qev::application {

FolderBox::FolderBox(QWidget* parent)
    : QWidget(parent)
    , m_line(new QLineEdit)
{
    m_line->setClearButtonEnabled(true);
    auto* const button = new QPushButton(getText("Button_Browse"));
    connect(button, &QPushButton::clicked, this, [this] { choose(); });
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_line);
    layout->addWidget(button);
    setFocusProxy(m_line);
}

FolderBox::~FolderBox() = default;

std::filesystem::path FolderBox::getFolder() const { return toPath(m_line->text().trimmed()); }

void FolderBox::setFolder(std::filesystem::path const& folder) { m_line->setText(fromPath(folder)); }

void FolderBox::choose()
{
    auto const folder = QFileDialog::getExistingDirectory(this, QString(), m_line->text());
    if (!folder.isEmpty())
        m_line->setText(folder);
}

} // namespace qev::application
