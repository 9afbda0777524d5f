#pragma once

#include "Classification/ClassificationSystem.h"

#include <map>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>
#include <string>
#include <vector>

namespace qev::application {

/// Lets the user pick a code of a system of classification: as a tree to browse, and by a search over codes,
/// titles and descriptions.
class ClassificationDialog final : public QDialog
{
public:
    /// \param selectedCode is chosen to begin with; nothing is for an empty or unknown one. \p system
    /// outlives the dialog.
    ClassificationDialog(classification::ClassificationSystem const& system, std::string const& selectedCode,
                         QWidget* parent = nullptr);
    ~ClassificationDialog() override;

    /// The codes from the top down to the chosen one; empty when none is.
    [[nodiscard]] std::vector<std::string> getChosenPath() const;

    [[nodiscard]] QLineEdit& getSearch() { return *m_search; }
    [[nodiscard]] QTreeWidget& getTree() { return *m_tree; }

protected:
    /// The arrows move through the tree while the search is typed in.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void fill(QTreeWidgetItem* parent, std::string const& code);
    void search(QString const& text);
    void select(std::string const& code);
    void showChosen();

    classification::ClassificationSystem const& m_system;
    QLineEdit* m_search;
    QTreeWidget* m_tree;
    QLabel* m_description;
    QPushButton* m_ok = nullptr;
    std::map<std::string, QTreeWidgetItem*> m_items;
};

} // namespace qev::application
