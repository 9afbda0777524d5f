#pragma once

#include "Core/Utilities/Events/EventHandlerContainer.h"
#include "HostUiQtExport.h"
#include "Ui/PropertyGrid/PropertyGridEditing.h"
#include "Ui/PropertyGrid/PropertyGridModel.h"
#include "Ui/PropertyGrid/PropertyGridObserver.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <QAbstractItemModel>
#include <QString>

namespace qev::ui {

/// The rows of a property grid as an item model with a name and a value column.
///
/// It keeps nothing of its own: each answer comes from the row and the common rules of editing.
class HOSTUIQT_EXPORT QtPropertyGridItemModel final : public QAbstractItemModel, private PropertyGridObserver
{
public:
    static constexpr int nameColumn = 0;
    static constexpr int valueColumn = 1;

    explicit QtPropertyGridItemModel(std::shared_ptr<PropertyGridModel> rows, QObject* parent = nullptr);
    ~QtPropertyGridItemModel() override;

    /// The row of an index; null for an invalid one.
    [[nodiscard]] static PropertyGridRow* getRow(QModelIndex const& index);
    /// The index of a row; an invalid one when the row does not stand in the model.
    [[nodiscard]] QModelIndex getIndex(PropertyGridRow const& row, int column = nameColumn) const;

    /// Blanks the value of a row. Inputs that are refused are told by `onInputRefused`.
    bool clear(QModelIndex const& index);
    bool clickCheckBox(QModelIndex const& index);
    bool pressButton(QModelIndex const& index);
    /// Presses one of the buttons at the end of a row.
    bool pressButton(QModelIndex const& index, std::size_t button);
    /// Goes where the value of a link leads.
    bool followLink(QModelIndex const& index);

    [[nodiscard]] QModelIndex index(int row, int column, QModelIndex const& parent = {}) const override;
    [[nodiscard]] QModelIndex parent(QModelIndex const& index) const override;
    [[nodiscard]] int rowCount(QModelIndex const& parent = {}) const override;
    [[nodiscard]] int columnCount(QModelIndex const& parent = {}) const override;
    [[nodiscard]] QVariant data(QModelIndex const& index, int role) const override;
    bool setData(QModelIndex const& index, QVariant const& value, int role) override;
    [[nodiscard]] Qt::ItemFlags flags(QModelIndex const& index) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    /// Fired when an input was not taken, with the reason for the user.
    EventHandlerContainer<void, void, QString const&> onInputRefused;

private:
    using Input = std::function<PropertyGridEditResult(PropertyGridRow&)>;

    bool drive(QModelIndex const& index, Input const& input);
    [[nodiscard]] QModelIndex getParentIndex(PropertyGridRow* parent) const;

    void onAboutToReset() override;
    void onReset() override;
    void onRowAboutToBeInserted(PropertyGridRow* parent, std::size_t index) override;
    void onRowInserted(PropertyGridRow* parent, std::size_t index) override;
    void onRowChanged(PropertyGridRow& row) override;

    std::shared_ptr<PropertyGridModel> m_rows;
};

} // namespace qev::ui
