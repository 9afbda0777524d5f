#include "ListFigures.h"

#include "Core/Localization/Dictionaries.h"
#include "Core/Platform/ProcessMemory.h"
#include "Core/Utilities/ScopeGuard.h"
#include "Figures.h"
#include "Format/Ifc/Schema/SchemaLoader.h"
#include "ListModel.h"
#include "StopWatch.h"
#include "UI/FoundationClasses/Controls/Formatters/ListControlPropertyFormatter.h"
#include "UI/FoundationClasses/Controls/ListControl/PropertySetListControl.h"
#include "UI/FoundationClasses/Controls/PropertySetDefinitionFilterInterface.h"
#include "Ui/Qt/ListControl/QtListControl.h"
#include "Ui/Qt/QtBackend.h"

#include <QAbstractTableModel>
#include <QCoreApplication>
#include <QScrollBar>
#include <QTableView>
#include <vector>

namespace qev::benchmarks {

namespace {

using fc::ui::PropertySetListControl;
using ui::ListControl;
using Formatters = fc::ui::PropertySetControlFormatters<fc::ui::ListControlPropertyFormatterInterface>;

constexpr int width = 1600;
constexpr int height = 900;
constexpr int walls = 2000;
constexpr int listId = 101;

/// The sets of the model alone, and none of those that the standard has for walls.
class OwnSetsFilter final : public fc::ui::PropertySetDefinitionFilterInterface
{
public:
    void setObject(std::shared_ptr<fc::FcBase>) override {}
    [[nodiscard]] bool isSetIncluded(std::string const& setName) const override
    {
        return setName.starts_with("Set");
    }
    [[nodiscard]] bool isPropertyIncluded(std::string const&, std::string const&) const override
    {
        return true;
    }
};

/// As little as a model can do.
class TrivialModel final : public QAbstractTableModel
{
public:
    explicit TrivialModel(int rows)
        : m_rows(rows)
    {
        for (int column = 0; column < ListModel::columns; ++column)
            m_texts.push_back("Wall " + QString::number(column) + ".25 m");
    }

    [[nodiscard]] int rowCount(QModelIndex const& parent) const override
    {
        return parent.isValid() ? 0 : m_rows;
    }
    [[nodiscard]] int columnCount(QModelIndex const& parent) const override
    {
        return parent.isValid() ? 0 : ListModel::columns;
    }
    [[nodiscard]] QVariant data(QModelIndex const& index, int role) const override
    {
        return role == Qt::DisplayRole ? m_texts[index.column()] : QVariant();
    }

private:
    int m_rows;
    QStringList m_texts;
};

void paint(QAbstractItemView& view)
{
    QCoreApplication::processEvents();
    view.viewport()->repaint();
}

double scrollThroughPages(QAbstractItemView& view)
{
    auto& bar = *view.verticalScrollBar();
    bar.setValue(0);
    paint(view);
    StopWatch const watch;
    for (int page = 0; page < ListFigures::pages; ++page) {
        bar.triggerAction(QAbstractSlider::SliderPageStepAdd);
        view.viewport()->repaint();
    }
    return watch.read().seconds;
}

/// The control of the library over the model, which answers for the cells of every list below.
class Source
{
public:
    Source(ui::QtBackend& backend, ListModel const& model)
        : m_model(model)
        , m_dialog(backend.createDialog({width, height}))
    {
        backend.addPlaceholder(m_dialog, listId, {0, 0, width, height});
        m_control = std::make_shared<PropertySetListControl>(
            ifc::SchemaLoader::curr().pSchemaFromName(ifc::SchemaLoader::modelVersion), model.getData(),
            m_dialog, listId, std::make_shared<OwnSetsFilter>(),
            Formatters{nullptr, std::make_shared<fc::ui::ListControlPropertyFormatter>()},
            localization::Dictionaries::getContexts("IFC"), nullptr);
        m_dialog->hide();
    }

    void setRows(int rows)
    {
        m_control->setObjects(m_model.getData(), m_model.getObjects(static_cast<std::size_t>(rows)));
    }
    [[nodiscard]] ListControl& getList() const { return *m_control->getListControl(); }

private:
    ListModel const& m_model;
    std::shared_ptr<ui::Dialog> m_dialog;
    std::shared_ptr<PropertySetListControl> m_control;
};

/// Has \p list answered by \p source for each of its questions.
void answerFrom(ListControl& source, ListControl& list, std::size_t& reads)
{
    using Item = ListControl::ItemInfo;
    list.onGetColumnHeaderText.iHandlerAdd(
        [&](auto&, std::size_t column) { return fireEvent(source.onGetColumnHeaderText, column); });
    list.onGetItemText.iHandlerAdd([&](auto&, Item const& item) {
        ++reads;
        return fireEvent(source.onGetItemText, item);
    });
    list.onGetItemNumber.iHandlerAdd(
        [&](auto&, Item const& item) { return fireEvent(source.onGetItemNumber, item); });
    list.onGetItemBackgroundColour.iHandlerAdd(
        [&](auto&, Item const& item) { return fireEvent(source.onGetItemBackgroundColour, item); });
    list.onGetItemStyle.iHandlerAdd(
        [&](auto&, Item const& item) { return fireEvent(source.onGetItemStyle, item); });
    list.onGetCheckState.iHandlerAdd(
        [&](auto&, Item const& item) { return fireEvent(source.onGetCheckState, item); });
    list.onIsItemReadOnly.iHandlerAdd(
        [&](auto&, Item const& item) { return fireEvent(source.onIsItemReadOnly, item); });
    list.onDoesItemContainLocalValue.iHandlerAdd(
        [&](auto&, Item const& item) { return fireEvent(source.onDoesItemContainLocalValue, item); });
    for (std::size_t column = 0; column < source.getColumnCount(); ++column)
        if (auto const mode = source.getCheckBoxMode(column))
            list.enableColumnCheckBoxes(column, *mode, nullptr, nullptr);
}

struct Run
{
    double show = 0;
    double pages = 0;
    double readsPerCell = 0;
    double bytes = 0;
};

/// A list of \p rows rows, from nothing to the first picture.
Run runList(ui::QtBackend& backend, Source const& source, int rows)
{
    auto const dialog = backend.createDialog({width, height});
    QCoreApplication::processEvents();
    Run run;
    std::size_t reads = 0;
    auto const before = static_cast<double>(platform::residentBytes());
    StopWatch const showing;
    auto const list = ui::Window::create<ListControl>(dialog, ListControl::ReportStyle, 0,
                                                      ui::WindowPlacement{0, 0, width, height});
    answerFrom(source.getList(), *list, reads);
    list->setItemAndColumnCounts(static_cast<std::size_t>(rows), ListModel::columns);
    auto& view = backend.getListControl(*list)->getView();
    paint(view);
    run.show = showing.read().seconds;
    run.bytes = static_cast<double>(platform::residentBytes()) - before;
    run.pages = scrollThroughPages(view);

    reads = 0;
    view.viewport()->repaint();
    std::size_t columns = 0;
    for (auto const column : view.getHeader().getShownColumns())
        columns += view.getHeader().sectionViewportPosition(column) < view.viewport()->width() ? 1 : 0;
    auto const cells = columns * static_cast<std::size_t>(view.countVisiblePositions());
    run.readsPerCell = static_cast<double>(reads) / static_cast<double>(cells);
    return run;
}

Run runTable(int rows)
{
    QWidget window;
    window.resize(width, height);
    window.show();
    QCoreApplication::processEvents();
    Run run;
    auto const before = static_cast<double>(platform::residentBytes());
    StopWatch const showing;
    TrivialModel model(rows);
    QTableView view(&window);
    view.setGeometry(0, 0, width, height);
    view.setModel(&model);
    view.show();
    paint(view);
    run.show = showing.read().seconds;
    run.bytes = static_cast<double>(platform::residentBytes()) - before;
    run.pages = scrollThroughPages(view);
    return run;
}

double sortBy(ui::QtListControl& list, std::size_t column)
{
    StopWatch const watch;
    list.setSorting({{column, false}});
    while (list.isWorking())
        QCoreApplication::processEvents();
    return watch.read().seconds;
}

double medianOf(std::vector<Run> const& runs, double Run::*figure)
{
    std::vector<double> values;
    for (auto const& run : runs)
        values.push_back(run.*figure);
    return median(std::move(values));
}

} // namespace

FigureTable ListFigures::measure(unsigned int runs)
{
    auto const backend = ui::QtBackend::install();
    ListModel const model(walls);
    Source source(*backend, model);
    StopWatch const setting;
    source.setRows(rows);
    auto const setSeconds = setting.read().seconds;

    // The first of each pays for fonts and styles that the program loads once, and for the model's objects.
    runList(*backend, source, rows);
    runTable(rows);
    std::vector<Run> lists;
    std::vector<Run> tables;
    std::vector<Run> shortLists;
    for (unsigned int run = 0; run < runs; ++run) {
        lists.push_back(runList(*backend, source, rows));
        tables.push_back(runTable(rows));
        shortLists.push_back(runList(*backend, source, rows / 1000));
    }

    source.setRows(sortedRows);
    auto& sorted = *backend->getListControl(source.getList());
    auto const byText = sortBy(sorted, 0);
    auto const byNumber = sortBy(sorted, 1);

    constexpr double timeBar = 1.5;
    constexpr double memoryBar = 1e6;
    FigureTable table("List of 1,000,000 rows with 60 columns, beside a bare table of Qt");
    auto const listShow = medianOf(lists, &Run::show);
    auto const tableShow = medianOf(tables, &Run::show);
    table.add("table: make and paint", milliseconds(tableShow));
    table.add("list: make and paint", milliseconds(listShow), milliseconds(timeBar * tableShow),
              listShow / (timeBar * tableShow));
    auto const listPages = medianOf(lists, &Run::pages);
    auto const tablePages = medianOf(tables, &Run::pages);
    table.add("table: scroll by 200 pages", milliseconds(tablePages));
    table.add("list: scroll by 200 pages", milliseconds(listPages), milliseconds(timeBar * tablePages),
              listPages / (timeBar * tablePages));
    auto const reads = medianOf(lists, &Run::readsPerCell);
    table.add("list: values read for each cell painted", formatted("%8.2f", reads), formatted("%8.2f", 1.0),
              reads);
    table.add("list: find out what 1,000,000 objects have in common", milliseconds(setSeconds));
    table.add("list: sort 200,000 rows by a text", milliseconds(byText));
    table.add("list: sort 200,000 rows by a number", milliseconds(byNumber));
    table.add("table: memory", megabytes(medianOf(tables, &Run::bytes)));
    auto const more = medianOf(lists, &Run::bytes) - medianOf(shortLists, &Run::bytes);
    table.add("list: memory beyond that of 1,000 rows", megabytes(more), megabytes(memoryBar),
              more / memoryBar);
    return table;
}

} // namespace qev::benchmarks
