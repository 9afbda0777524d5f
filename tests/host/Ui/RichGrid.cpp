#include "RichGrid.h"

#include "Core/Unit/QuantityPresentationFactory.h"
#include "Ui/Window/Controls/PropertyGridControl/PropertyGridCheckBoxProperty.h"
#include "Ui/Window/Controls/PropertyGridControl/PropertyGridCustomButtonProperty.h"
#include "Ui/Window/Controls/PropertyGridControl/PropertyGridEmptyLineProperty.h"

#include <initializer_list>
#include <string>
#include <tuple>
#include <utility>

namespace qev::test {

namespace {

using namespace ui;
using Property = PropertyGridProperty;
using VisibleState = PropertyGridCustomButtonProperty::VisibleState;

constexpr auto readOnly = true;

Property text(std::string const& name, std::string const& value, bool isReadOnly = false)
{
    return {name, value, "What " + name + " tells of the wall.", isReadOnly};
}

Property number(std::string const& name, double value, std::string const& measure)
{
    Property row(name, value, "How much the " + name + " is.", false);
    row.setQuantityPresentation(unit::createPresentationForMeasure(measure));
    return row;
}

Property choice(std::string const& name, std::string const& value, std::initializer_list<char const*> options,
                bool optionsOnly)
{
    auto row = text(name, value);
    for (auto const* const option : options)
        row.addOption(option, true);
    row.setOptionsOnly(optionsOnly);
    return row;
}

PropertyGridCustomButtonProperty button(std::string const& name, std::string const& value)
{
    return {name, nullptr, VisibleState::Visible, value, "What " + name + " tells of the wall."};
}

void add(Property& group, Property row) { group.addSubProperty(row); }

} // namespace

void RichGrid::fill(std::shared_ptr<PropertyGridControl> const& control)
{
    control->removeAllProperties();
    RichGrid grid(control);
    grid.addAttributes();
    grid.addSet();
    grid.addLooks();
    grid.addQuantities();
    control->adjustLayout();
}

RichGrid::RichGrid(std::shared_ptr<PropertyGridControl> const& control)
    : m_control(control)
{
}

void RichGrid::addAttributes()
{
    auto group = std::make_unique<Property>("Wall");
    add(*group, text("GlobalId", "2O2Fr$t4X7Zf8NOew3FNr2", readOnly));
    add(*group, text("Name", "Basic wall, exterior, first floor, between the axes A and D along the street"));
    add(*group, text("Description", ""));
    auto varying = text("Tag", "");
    varying.setHint("varies");
    add(*group, std::move(varying));
    auto predefined = choice("PredefinedType", "SOLIDWALL", {"", "SOLIDWALL", "PARTITIONING"}, false);
    predefined.allowEdit(false);
    add(*group, std::move(predefined));
    m_control->addProperty(std::move(group));
}

void RichGrid::addSet()
{
    auto group = std::make_unique<Property>("Pset_WallCommon");
    add(*group, text("Reference", "W-240"));
    add(*group, number("ThermalTransmittance", 0.24, "ThermalTransmittanceMeasure"));
    PropertyGridCheckBoxProperty external("IsExternal", CheckState::Checked, "Whether it faces the outside.");
    group->addSubProperty(external);
    PropertyGridCheckBoxProperty mixed("LoadBearing", CheckState::Indeterminate, "Whether it carries loads.");
    group->addSubProperty(mixed);
    PropertyGridCheckBoxProperty locked("ExtendToStructure", CheckState::Checked, "Whether it goes on.");
    locked.allowEdit(false);
    group->addSubProperty(locked);
    PropertyGridCheckBoxProperty rated("FireRating", CheckState::Checked, "F90", "How long it resists.");
    rated.setValueDisplayMode(ValueDisplayMode::BesideCheckBox);
    group->addSubProperty(rated);
    PropertyGridCheckBoxProperty sized("Sill", CheckState::Unchecked, 0.9, "How high the sill is.");
    sized.setQuantityPresentation(unit::createPresentationForMeasure("LengthMeasure"));
    group->addSubProperty(sized);
    auto combustible = choice("Combustible", "unknown", {"", "true", "false", "unknown"}, false);
    combustible.allowEdit(false);
    add(*group, std::move(combustible));
    add(*group, choice("Status", "Existing", {"", "New", "Existing", "Demolish"}, true));
    auto range = button("AcousticRange", "45 dB … 52 dB");
    group->addSubProperty(range);
    auto layers = button("Layers", "Plaster; Brick; Insulation");
    group->addSubProperty(layers);
    m_control->addProperty(std::move(group));
}

void RichGrid::addLooks()
{
    auto group = std::make_unique<Property>("Company");
    auto disabled = text("Approved", "by the engineer");
    disabled.enable(false);
    add(*group, std::move(disabled));
    auto empty = text("Checked", "hidden");
    empty.enable(false);
    empty.activateEmptyState();
    add(*group, std::move(empty));
    auto bold = text("Phase", "Construction");
    bold.setBoldFontStyleForNameAndValue();
    bold.setHorizontalLine(static_cast<int>(PropertyGridHorizontalLine::AboveAndBelow));
    add(*group, std::move(bold));
    auto indented = text("Contractor", "North & Sons");
    indented.setNameIndentationInCharacters(3);
    add(*group, std::move(indented));
    PropertyGridEmptyLineProperty line;
    group->addSubProperty(line);
    auto light = text("Remark", "light ground");
    light.setBackgroundColour({255, 255, 243, 191});
    light.setHorizontalLine(static_cast<int>(PropertyGridHorizontalLine::Above));
    add(*group, std::move(light));
    auto dark = number("Cover", 0.025, "LengthMeasure");
    dark.setBackgroundColour({255, 40, 66, 120});
    dark.setHorizontalLine(static_cast<int>(PropertyGridHorizontalLine::Below));
    add(*group, std::move(dark));
    m_control->addProperty(std::move(group));
}

void RichGrid::addQuantities()
{
    auto group = std::make_unique<Property>("Qto_WallBaseQuantities");
    for (auto const& [name, value, measure] :
         {std::tuple("Width", 0.24, "LengthMeasure"), std::tuple("NetSideArea", 21.375, "AreaMeasure"),
          std::tuple("NetVolume", 5.13, "VolumeMeasure")}) {
        auto row = number(name, value, measure);
        row.allowEdit(false);
        row.setAlignment(static_cast<int>(PropertyGridAlignment::Right));
        add(*group, std::move(row));
    }
    auto weight = Property("GrossWeight", 9234.5, "Without a quantity.", false);
    weight.setAlignment(static_cast<int>(PropertyGridAlignment::Right));
    weight.showButton(true);
    add(*group, std::move(weight));
    m_control->addProperty(std::move(group));
}

} // namespace qev::test
