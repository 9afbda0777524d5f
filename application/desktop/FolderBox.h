#pragma once

#include <filesystem>
#include <QLineEdit>
#include <QWidget>

namespace qev::application {

/// A line for a path, which may be none, with a button to choose a folder; a file is typed.
class FolderBox final : public QWidget
{
public:
    explicit FolderBox(QWidget* parent = nullptr);
    ~FolderBox() override;

    [[nodiscard]] std::filesystem::path getFolder() const;
    void setFolder(std::filesystem::path const& folder);

private:
    void choose();

    QLineEdit* m_line;
};

} // namespace qev::application
