#pragma once

#include "QtUiTest.h"
#include "Ui/Qt/PropertyGrid/QtPropertyGridLayout.h"
#include "Ui/Qt/QtCellDrawing.h"
#include "Ui/Qt/QtText.h"

#include <functional>
#include <QAbstractItemModelTester>
#include <QApplication>
#include <QTest>

namespace qev::test {

inline std::unique_ptr<ui::PropertyGridProperty> text(std::string const& name, std::string const& value,
                                                      bool readOnly = false)
{
    return std::make_unique<ui::PropertyGridProperty>(name, value, "About " + name, readOnly);
}

inline std::unique_ptr<ui::PropertyGridProperty> length(std::string const& name, double metres)
{
    auto row = std::make_unique<ui::PropertyGridProperty>(name, metres, "About " + name, false);
    row->setQuantityPresentation(unit::createPresentationForMeasure("LengthMeasure"));
    return row;
}

inline std::unique_ptr<ui::PropertyGridProperty> choice(std::string const& name, std::string const& value,
                                                        bool optionsOnly)
{
    auto row = text(name, value);
    for (auto const* const option : {"F30", "F60", "F90"})
        row->addOption(option);
    row->setOptionsOnly(optionsOnly);
    return row;
}

/// A grid with a few rows, driven by keys and clicks.
class QtPropertyGridTest : public QtUiTest
{
protected:
    using Path = std::vector<std::string>;

    QtPropertyGridTest()
        : control(ui::Window::create<ui::PropertyGridControl>(dialog, 0, 0, {0, 0, 500, 400}))
        , grid(*backend->getPropertyGrid(*control))
        , view(grid.getView())
        , model(grid.getItemModel())
        , tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal)
    {
        control->onPropertyChanged.iHandlerAdd([this](auto&, ui::PropertyGridProperty& property) {
            std::string value;
            property.getStringValue(value);
            changes.push_back(property.getName() + "=" + value);
            if (refillOnChange)
                fill();
        });
        fill();
        QApplication::setActiveWindow(backend->getWidget(dialog->getHandle()));
        view.setFocus();
        settle();
    }

    /// What the rows are made of; tests add to it.
    std::function<void(ui::PropertyGridProperty&)> addMore = [](ui::PropertyGridProperty&) {};

    void fill()
    {
        control->removeAllProperties();
        auto attributes = std::make_unique<ui::PropertyGridProperty>("Attributes");
        for (auto& row : {text("GlobalId", "0abc", true), text("Name", name)})
            attributes->addSubProperty(*row);
        auto set = std::make_unique<ui::PropertyGridProperty>("Pset_WallCommon");
        std::vector<std::unique_ptr<ui::PropertyGridProperty>> rows;
        rows.push_back(length("Width", 0.123456789));
        rows.push_back(choice("FireRating", "F30", true));
        rows.push_back(choice("Status", "F60", false));
        auto external = std::make_unique<ui::PropertyGridCheckBoxProperty>(
            "IsExternal", ui::CheckState::Unchecked, std::string("About IsExternal"));
        external->getOnCheckBoxClickedHandlers(control).iHandlerAdd(
            [this](auto&, ui::PropertyGridCheckBoxProperty& property) {
                clicks.push_back(property.getCheckState());
            });
        rows.push_back(std::move(external));
        for (auto const& row : rows)
            set->addSubProperty(*row);
        addMore(*set);
        control->addProperty(std::move(attributes));
        control->addProperty(std::move(set));
        control->adjustLayout();
    }

    [[nodiscard]] QModelIndex index(Path const& path,
                                    int column = ui::QtPropertyGridItemModel::valueColumn) const
    {
        QModelIndex found;
        for (auto const& step : path) {
            auto const matches = model.match(model.index(0, 0, found), Qt::DisplayRole, ui::toQString(step),
                                             1, Qt::MatchExactly | Qt::MatchCaseSensitive);
            if (matches.isEmpty())
                return {};
            found = matches.front();
        }
        return found.siblingAtColumn(column);
    }
    [[nodiscard]] std::string value(Path const& path) const
    {
        return ui::fromQString(index(path).data(Qt::DisplayRole).toString());
    }
    [[nodiscard]] std::string current() const
    {
        auto const* const row = ui::QtPropertyGridItemModel::getRow(view.currentIndex());
        return row ? row->getName() : "";
    }
    void select(Path const& path)
    {
        view.selectionModel()->setCurrentIndex(index(path, 0), QItemSelectionModel::ClearAndSelect |
                                                                   QItemSelectionModel::Rows);
    }
    void click(QPoint const& position)
    {
        QTest::mouseClick(view.viewport(), Qt::LeftButton, Qt::NoModifier, position);
    }
    void click(Path const& path) { click(view.visualRect(index(path)).center()); }
    void key(Qt::Key pressed, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        auto* const target = QApplication::focusWidget();
        ASSERT_NE(target, nullptr);
        QTest::keyClick(target, pressed, modifiers);
        settle();
    }
    void type(char const* typed)
    {
        for (; *typed; ++typed)
            QTest::keyClick(QApplication::focusWidget(), *typed);
    }
    template <class Editor>
    [[nodiscard]] Editor* editor(Path const& path) const
    {
        return qobject_cast<Editor*>(view.indexWidget(index(path)));
    }
    [[nodiscard]] ui::QtPropertyGridLayout layout(Path const& path) const
    {
        QStyleOptionViewItem option;
        option.initFrom(&view);
        option.widget = &view;
        option.rect = view.visualRect(index(path));
        return ui::QtPropertyGridLayout::of(*ui::QtPropertyGridItemModel::getRow(index(path)), option);
    }

    std::string name = "Wall 1";
    std::shared_ptr<ui::PropertyGridControl> control;
    ui::QtPropertyGrid& grid;
    ui::QtPropertyGridView& view;
    ui::QtPropertyGridItemModel& model;
    QAbstractItemModelTester tester;
    bool refillOnChange = false;
    std::vector<std::string> changes;
    std::vector<ui::CheckState> clicks;

    Path const nameRow{"Attributes", "Name"};
    Path const widthRow{"Pset_WallCommon", "Width"};
    Path const ratingRow{"Pset_WallCommon", "FireRating"};
    Path const statusRow{"Pset_WallCommon", "Status"};
    Path const externalRow{"Pset_WallCommon", "IsExternal"};
};

} // namespace qev::test
