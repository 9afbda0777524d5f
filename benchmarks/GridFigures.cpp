#include "GridFigures.h"

#include "Core/Unit/QuantityPresentationFactory.h"
#include "Figures.h"
#include "StopWatch.h"
#include "Ui/Qt/PropertyGrid/QtPropertyGrid.h"
#include "Ui/Qt/PropertyGrid/QtPropertyGridView.h"
#include "Ui/Qt/QtBackend.h"
#include "Ui/Window/Controls/PropertyGridControl/PropertyGridCheckBoxProperty.h"
#include "Ui/Window/Controls/PropertyGridControl/PropertyGridControl.h"

#include <algorithm>
#include <memory>
#include <QCoreApplication>
#include <QEvent>
#include <QScrollBar>
#include <QTreeWidget>
#include <string>
#include <vector>

namespace qev::benchmarks {

namespace {

using ui::PropertyGridCheckBoxProperty;
using ui::PropertyGridControl;
using ui::PropertyGridProperty;

constexpr int width = 480;
constexpr int height = 900;

std::string getSetName(int set) { return "Pset_Number" + std::to_string(set); }

std::string getRowName(int row) { return "PropertyOfTheSet" + std::to_string(row); }

std::string getText(int set, int row) { return "Text " + std::to_string(set) + '.' + std::to_string(row); }

double getNumber(int set, int row) { return 0.25 + set + 0.01 * row; }

/// The kinds of row change in turn, as they do in sets of the standard.
std::unique_ptr<PropertyGridProperty> makeRow(int set, int row)
{
    auto const name = getRowName(row);
    std::string const description = "What the property number " + std::to_string(row) + " tells.";
    switch (row % 5) {
    case 0: {
        auto number = std::make_unique<PropertyGridProperty>(name, getNumber(set, row), description, false);
        number->setQuantityPresentation(unit::createPresentationForMeasure("LengthMeasure"));
        return number;
    }
    case 1:
        return std::make_unique<PropertyGridCheckBoxProperty>(
            name, row % 2 ? ui::CheckState::Checked : ui::CheckState::Unchecked, description);
    case 2: {
        auto choice = std::make_unique<PropertyGridProperty>(name, "EXISTING", description, false);
        for (auto const* const option : {"", "NEW", "EXISTING", "DEMOLISH", "TEMPORARY"})
            choice->addOption(option, true);
        choice->setOptionsOnly(true);
        return choice;
    }
    default:
        return std::make_unique<PropertyGridProperty>(name, getText(set, row), description, row % 5 == 3);
    }
}

void fillGrid(PropertyGridControl& control)
{
    control.removeAllProperties();
    for (int set = 0; set < GridFigures::sets; ++set) {
        auto group = std::make_unique<PropertyGridProperty>(getSetName(set));
        for (int row = 0; row < GridFigures::rowsPerSet; ++row)
            group->addSubProperty(*makeRow(set, row));
        control.addProperty(std::move(group));
    }
    control.adjustLayout();
}

QString getTreeText(int set, int row)
{
    if (row % 5 == 0)
        return QString::number(getNumber(set, row)) + " m";
    return row % 5 == 2 ? QStringLiteral("EXISTING") : QString::fromStdString(getText(set, row));
}

void fillTree(QTreeWidget& tree)
{
    tree.clear();
    for (int set = 0; set < GridFigures::sets; ++set) {
        auto* const group = new QTreeWidgetItem(&tree, {QString::fromStdString(getSetName(set))});
        for (int row = 0; row < GridFigures::rowsPerSet; ++row) {
            auto* const item = new QTreeWidgetItem(group, {QString::fromStdString(getRowName(row)),
                                                           row % 5 == 1 ? QString() : getTreeText(set, row)});
            if (row % 5 == 1)
                item->setCheckState(1, row % 2 ? Qt::Checked : Qt::Unchecked);
        }
    }
    tree.expandAll();
}

/// Counts how often a widget has been painted.
class PaintCounter final : public QObject
{
public:
    explicit PaintCounter(QWidget& widget) { widget.installEventFilter(this); }

    [[nodiscard]] int getCount() const { return m_count; }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint)
            ++m_count;
        return QObject::eventFilter(watched, event);
    }

private:
    int m_count = 0;
};

/// Does everything that is due before the next event, painting included.
void paint(QAbstractItemView& view)
{
    PaintCounter const counter(*view.viewport());
    QCoreApplication::processEvents();
    if (counter.getCount() == 0)
        view.viewport()->repaint();
}

/// What each step from the first page to the last takes.
std::vector<double> scrollThrough(QAbstractItemView& view)
{
    std::vector<double> pages;
    auto& bar = *view.verticalScrollBar();
    bar.setValue(0);
    paint(view);
    while (bar.value() < bar.maximum()) {
        StopWatch const watch;
        bar.triggerAction(QAbstractSlider::SliderPageStepAdd);
        paint(view);
        pages.push_back(watch.read().seconds);
    }
    return pages;
}

struct Run
{
    double show = 0;
    double refill = 0;
    std::vector<double> pages;
};

Run runGrid(ui::QtBackend& backend)
{
    auto const dialog = backend.createDialog({width, height});
    QCoreApplication::processEvents();
    Run run;
    StopWatch const showing;
    auto const control =
        ui::Window::create<PropertyGridControl>(dialog, 0, 0, ui::WindowPlacement{0, 0, width, height});
    auto& view = backend.getPropertyGrid(*control)->getView();
    fillGrid(*control);
    paint(view);
    run.show = showing.read().seconds;
    StopWatch const refilling;
    fillGrid(*control);
    paint(view);
    run.refill = refilling.read().seconds;
    run.pages = scrollThrough(view);
    return run;
}

Run runTree()
{
    QWidget window;
    window.resize(width, height);
    window.show();
    QCoreApplication::processEvents();
    Run run;
    StopWatch const showing;
    auto* const tree = new QTreeWidget(&window);
    tree->setGeometry(0, 0, width, height);
    tree->setHeaderLabels({"Name", "Value"});
    tree->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    tree->setColumnWidth(0, width / 2);
    fillTree(*tree);
    tree->show();
    paint(*tree);
    run.show = showing.read().seconds;
    StopWatch const refilling;
    fillTree(*tree);
    paint(*tree);
    run.refill = refilling.read().seconds;
    run.pages = scrollThrough(*tree);
    return run;
}

struct Figures
{
    double show;
    double refill;
    double page;
    double slowestPage;
};

/// The median of each page over all runs: whatever kept the machine busy for a moment is no page's fault.
std::vector<double> getPages(std::vector<Run> const& runs)
{
    std::vector<double> pages;
    for (std::size_t page = 0; page < runs.front().pages.size(); ++page) {
        std::vector<double> times;
        for (auto const& run : runs)
            times.push_back(run.pages.at(page));
        pages.push_back(median(std::move(times)));
    }
    return pages;
}

Figures getFigures(std::vector<Run> const& runs)
{
    std::vector<double> shows;
    std::vector<double> refills;
    for (auto const& run : runs) {
        shows.push_back(run.show);
        refills.push_back(run.refill);
    }
    auto const pages = getPages(runs);
    return {median(shows), median(refills), median(pages), *std::max_element(pages.begin(), pages.end())};
}

} // namespace

FigureTable GridFigures::measure(unsigned int runs)
{
    auto const backend = ui::QtBackend::install();
    std::vector<Run> gridRuns;
    std::vector<Run> treeRuns;
    // The first of each pays for fonts and styles that the program loads once.
    runGrid(*backend);
    runTree();
    for (unsigned int run = 0; run < runs; ++run) {
        gridRuns.push_back(runGrid(*backend));
        treeRuns.push_back(runTree());
    }
    auto const grid = getFigures(gridRuns);
    auto const tree = getFigures(treeRuns);

    constexpr double pageBar = 0.008;
    FigureTable table("Grid of " + std::to_string(sets) + " sets with " + std::to_string(rowsPerSet) +
                      " rows each, beside a bare tree of Qt");
    table.add("tree: make, fill and paint", milliseconds(tree.show));
    table.add("grid: make, fill and paint", milliseconds(grid.show), milliseconds(2 * tree.show),
              grid.show / (2 * tree.show));
    table.add("tree: fill anew and paint", milliseconds(tree.refill));
    table.add("grid: fill anew and paint", milliseconds(grid.refill), milliseconds(2 * tree.refill),
              grid.refill / (2 * tree.refill));
    table.add("tree: scroll by a page", milliseconds(tree.page));
    table.add("grid: scroll by a page", milliseconds(grid.page), milliseconds(pageBar), grid.page / pageBar);
    table.add("grid: the slowest page", milliseconds(grid.slowestPage), milliseconds(pageBar),
              grid.slowestPage / pageBar);
    return table;
}

} // namespace qev::benchmarks
