#include "UnitTable.h"

#include "Core/Unit/QuantityPresentation.h"
#include "Core/Unit/UnitFacts.h"
#include "Core/Unit/UnitIds.h"
#include "Texts.h"
#include "Ui/Qt/QtText.h"

#include <algorithm>
#include <array>
#include <initializer_list>
#include <QEvent>
#include <QHeaderView>
#include <utility>

namespace qev::application {

namespace {

using ui::toQString;
using unit::QppSettings;
using unit::QuantityFacts;
using unit::QuantityId;
using unit::UnitBase;
using unit::UnitFacts;
using Choice = unit::UnitPreferences::Choice;
using Style = QppSettings::Style;

constexpr int quantityRole = Qt::UserRole;
constexpr int unitRole = Qt::UserRole;
constexpr int styleRole = Qt::UserRole + 1;
/// Shown as an example, in the unit of the metric choice.
constexpr double exampleValue = 12.3456789;

template <std::size_t... Positions>
std::array<UnitBase const*, sizeof...(Positions)> getSiUnits(std::index_sequence<Positions...>)
{
    return {&unit::SiUnitOf<unit::quantityFacts[Positions].id>::get()...};
}

/// The SI unit of a quantity, by which the quantity and all its units are reached.
UnitBase const& getSiUnit(QuantityId quantity)
{
    static auto const units = getSiUnits(std::make_index_sequence<unit::quantityFacts.size()>());
    auto const found = std::find_if(units.begin(), units.end(), [quantity](UnitBase const* candidate) {
        return candidate->quantity().id() == quantity;
    });
    return **found;
}

QuantityId getQuantity(QTableWidget const& table, int row)
{
    return static_cast<QuantityId>(table.item(row, UnitTable::quantityColumn)->data(quantityRole).toInt());
}

QString getUnitText(UnitFacts const& facts)
{
    return *facts.symbol == '\0' ? getText("Settings_PlainNumber") : toQString(facts.symbol);
}

void addChoice(QComboBox& box, QString const& text, int unit, Style style)
{
    box.addItem(text, unit);
    box.setItemData(box.count() - 1, static_cast<int>(style), styleRole);
}

} // namespace

UnitTable::UnitTable(QWidget* parent)
    : QTableWidget(0, 4, parent)
{
    setHorizontalHeaderLabels({getText("Settings_Quantity"), getText("Settings_Unit"),
                               getText("Settings_Decimals"), getText("Settings_Example")});
    verticalHeader()->hide();
    setSelectionMode(QAbstractItemView::NoSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    for (auto const& facts : unit::quantityFacts)
        addRow(facts);
    for (int row = 0; row < rowCount(); ++row)
        renewRow(row);
    setWordWrap(false);
    // The example takes what the other columns leave, and is the one to be cut short.
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    resizeColumnsToContents();
    horizontalHeader()->setStretchLastSection(true);
    resizeRowsToContents();
}

UnitTable::~UnitTable() = default;

void UnitTable::setPreferences(unit::UnitPreferences const& preferences)
{
    auto const format = m_preferences.numberFormat();
    m_preferences = preferences;
    m_preferences.setNumberFormat(format);
    for (int row = 0; row < rowCount(); ++row)
        renewRow(row);
}

void UnitTable::setDecimalSign(char sign)
{
    m_preferences.setNumberFormat({sign});
    for (int row = 0; row < rowCount(); ++row)
        renewExample(row);
}

int UnitTable::getRow(QuantityId quantity) const
{
    for (int row = 0; row < rowCount(); ++row) {
        if (getQuantity(*this, row) == quantity)
            return row;
    }
    return -1;
}

QComboBox& UnitTable::getUnitBox(int row) const
{
    return *static_cast<QComboBox*>(cellWidget(row, unitColumn));
}

QSpinBox& UnitTable::getDecimalsBox(int row) const
{
    return *static_cast<QSpinBox*>(cellWidget(row, decimalsColumn));
}

bool UnitTable::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Wheel) {
        event->ignore();
        return true;
    }
    return QTableWidget::eventFilter(watched, event);
}

void UnitTable::addRow(QuantityFacts const& facts)
{
    auto const row = rowCount();
    insertRow(row);
    auto const& quantity = getSiUnit(facts.id).quantity();
    auto* const name = new QTableWidgetItem(toQString(quantity.sName()));
    name->setData(quantityRole, static_cast<int>(facts.id));
    name->setToolTip(toQString(quantity.sDescription()));
    setItem(row, quantityColumn, name);
    setItem(row, exampleColumn, new QTableWidgetItem);

    auto* const units = new QComboBox;
    fillUnitBox(*units, facts.id);
    units->setEnabled(units->count() > 1);
    auto* const decimals = new QSpinBox;
    decimals->setRange(0, QppSettings::maximumDecimals);
    for (auto* const box : std::initializer_list<QWidget*>{units, decimals}) {
        box->setFocusPolicy(Qt::StrongFocus);
        box->installEventFilter(this);
    }
    setCellWidget(row, unitColumn, units);
    connect(units, &QComboBox::currentIndexChanged, this, [this, row] { takeUnit(row); });

    setCellWidget(row, decimalsColumn, decimals);
    connect(decimals, &QSpinBox::valueChanged, this, [this, row] { takeDecimals(row); });
}

void UnitTable::fillUnitBox(QComboBox& box, QuantityId quantity) const
{
    for (auto const& facts : unit::unitFacts) {
        if (facts.quantity != quantity)
            continue;
        addChoice(box, getUnitText(facts), facts.id, Style::Decimal);
        if (facts.id == unit::footId)
            addChoice(box, getText("Settings_FeetAndInches"), facts.id, Style::FeetAndInches);
        if (facts.id == unit::degreeId)
            addChoice(box, getText("Settings_DegreesMinutesSeconds"), facts.id, Style::DegreesMinutesSeconds);
    }
}

void UnitTable::takeUnit(int row)
{
    if (m_isShowing)
        return;
    auto const& box = getUnitBox(row);
    auto choice = unit::UnitPreferences::choiceOfUnit(box.currentData(unitRole).toInt());
    choice.style = static_cast<Style>(box.currentData(styleRole).toInt());
    m_preferences.setChoice(getQuantity(*this, row), choice);
    renewRow(row);
    fireEvents(onChanged);
}

void UnitTable::takeDecimals(int row)
{
    if (m_isShowing)
        return;
    auto choice = m_preferences.choice(getQuantity(*this, row));
    choice.decimals = getDecimalsBox(row).value();
    m_preferences.setChoice(getQuantity(*this, row), choice);
    renewRow(row);
    fireEvents(onChanged);
}

void UnitTable::renewRow(int row)
{
    m_isShowing = true;
    auto const choice = m_preferences.choice(getQuantity(*this, row));
    auto& box = getUnitBox(row);
    for (int entry = 0; entry < box.count(); ++entry) {
        if (box.itemData(entry, unitRole).toInt() == choice.unit &&
            box.itemData(entry, styleRole).toInt() == static_cast<int>(choice.style))
            box.setCurrentIndex(entry);
    }
    getDecimalsBox(row).setValue(choice.decimals);
    // Feet and inches are rounded to sixteenths of an inch, whatever the decimals.
    getDecimalsBox(row).setEnabled(choice.style != Style::FeetAndInches);
    m_isShowing = false;
    renewExample(row);
}

void UnitTable::renewExample(int row)
{
    auto const& siUnit = getSiUnit(getQuantity(*this, row));
    QppSettings settings(siUnit.quantity());
    auto const value = unit::convert(exampleValue, settings.displayUnit(), siUnit);
    m_preferences.apply(settings);
    item(row, exampleColumn)->setText(toQString(settings.writeToString(value, siUnit)));
}

} // namespace qev::application
