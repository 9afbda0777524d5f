#pragma once

#include "Core/Utilities/Events/EventHandlerContainer.h"
#include "ObjectSearch.h"

#include <memory>
#include <optional>
#include <QLabel>
#include <QLineEdit>
#include <QTimer>
#include <QTreeWidget>
#include <QWidget>
#include <vector>

namespace qev::application {

/// A box to type in and, while there is a text in it, the list of what was found in place of \p whenEmpty.
class SearchPanel final : public QWidget
{
public:
    /// Takes \p whenEmpty over.
    explicit SearchPanel(QWidget& whenEmpty, QWidget* parent = nullptr);
    ~SearchPanel() override;

    /// Searches \p model from now on; null for nothing. Empties the box.
    void setData(std::shared_ptr<fc::Data> model);
    void focusBox();
    /// Chooses the hit below the present one, or the first.
    void chooseNext();

    [[nodiscard]] QLineEdit& getBox() const { return *m_box; }
    [[nodiscard]] QTreeWidget& getHits() const { return *m_hits; }
    [[nodiscard]] QString getCountText() const { return m_count->text(); }
    [[nodiscard]] bool isSearching() const { return m_search.has_value() || m_delay.isActive(); }

    /// The objects that were found.
    [[nodiscard]] std::vector<fc::EntityIndex> getObjects() const;

    /// Fired when a search has come to its end, or there is none any more.
    EventHandlerContainer<void, void> onFinished;
    /// Fired with the object that the user has chosen from the hits.
    EventHandlerContainer<void, void, fc::EntityIndex> onChosen;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void showTexts();
    void start();
    void advance();
    void addHit(ObjectSearch::Hit const& hit);
    void showCount();
    void choose(QTreeWidgetItem* item);
    bool handleKey(int key);

    std::shared_ptr<fc::Data> m_data;
    std::optional<ObjectSearch> m_search;
    QLineEdit* m_box;
    QLabel* m_count;
    QWidget* m_whenEmpty;
    QTreeWidget* m_hits;
    /// Between the last key and the search.
    QTimer m_delay;
    /// Between two portions of objects.
    QTimer m_portions;
};

} // namespace qev::application
