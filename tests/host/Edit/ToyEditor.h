#pragma once

#include "Core/Unit/QuantityPresentationFactory.h"
#include "Edit/ObjectPropertyEditControllerBase.h"
#include "Edit/ObjectPropertyEditInterface.h"
#include "Edit/PropertyGridObjectEditor.h"
#include "ToyProperties.h"
#include "Ui/Window/Image.h"

#include <map>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace qev::test {

/// An object with answers to everything that an editor asks, to be filled by tests.
class ToyObject final : public ToyProperties
{
public:
    std::set<Id> readOnly;
    std::set<Id> mandatory;
    std::set<Id> references;
    std::map<Id, Value> globalValues;
    std::map<Id, std::string> measures;
    /// Texts that no property takes.
    std::set<std::string> forbidden;
    std::map<Id, std::vector<Value>> suggestions;
    std::map<Id, std::string> valueDescriptions;
    bool isReadOnlyObject = false;
    bool canBeEditedWithOthers = true;

    bool isValueAllowed(Id const&, Value const& value) const override
    {
        auto const plain = value.getUnwrappedOptionalValue();
        return !plain || !plain->is<std::string>() || !forbidden.contains(plain->get<std::string>());
    }
    bool isEmptyValueAllowed(Id const& id) const override { return !mandatory.contains(id); }
    bool hasQuantityPresentation(Id const& id) const override { return measures.contains(id); }
    std::unique_ptr<unit::QuantityPresentationBase> createQuantityPresentation(Id const& id) const override
    {
        auto const found = measures.find(id);
        return found == measures.end() ? nullptr : unit::createPresentationForMeasure(found->second);
    }
    bool isLocalValue(Id const& id) const override
    {
        auto const found = globalValues.find(id);
        return found != globalValues.end() && getValue(id) != found->second;
    }
    void resetToGlobalValue(Id const& id) override { values[id] = globalValues.at(id); }
    std::string getPropertyName(Id const& id) const override
    {
        return id.text().substr(id.text().rfind('.') + 1);
    }
    std::string getPropertyValueDescription(Id const& id) const override
    {
        auto const found = valueDescriptions.find(id);
        return found == valueDescriptions.end() ? std::string() : found->second;
    }
    std::vector<Value> getSuggestedValues(Id const& id) const override
    {
        auto const found = suggestions.find(id);
        return found == suggestions.end() ? std::vector<Value>() : found->second;
    }
    bool isReadOnly() const override { return isReadOnlyObject; }
    bool isEditableWithOthers() const override { return canBeEditedWithOthers; }
    bool isPropertyReadOnly(Id const& id) const override { return readOnly.contains(id); }
    bool isReference(Id const& id) const override { return references.contains(id); }
};

/// Shows the rows that tests give it.
class ToyEdit final : public ui::edit::ObjectPropertyEditInterface
{
public:
    using Property = ui::edit::Property;

    std::vector<Property> rows;
    std::map<std::string, std::vector<Property>> dynamicRows;
    std::map<PropertyId, std::vector<std::string>> buttons;
    std::set<PropertyId> disabled;
    std::set<PropertyId> unwanted;
    std::map<PropertyId, attr::Colour> textColours;
    std::map<PropertyId, attr::Colour> backgroundColours;
    bool appliesAtLevel = true;

    [[nodiscard]] static Property leaf(std::string const& id)
    {
        return Property(PropertyId(id), 0, {}, nullptr);
    }
    [[nodiscard]] static Property group(std::string const& id, std::vector<Property> const& children)
    {
        Property property(PropertyId(id), 0, children, nullptr);
        property.isGroup = true;
        return property;
    }

    bool isEnabled(PropertyId const& id) const override { return !disabled.contains(id); }
    bool isReadOnly(PropertyId const&) const override { return false; }
    std::vector<PropertyButton> getButtons(PropertyId const& id) const override
    {
        std::vector<PropertyButton> result;
        if (auto const found = buttons.find(id); found != buttons.end())
            for (auto const& key : found->second)
                result.push_back(
                    {key, key == "delete" ? getDeleteButtonImage() : getAddItemButtonImage(), {}});
        return result;
    }
    std::optional<attr::Colour> getTextColour(PropertyId const& id) override { return find(textColours, id); }
    std::optional<attr::Colour> getBackgroundColour(PropertyId const& id) override
    {
        return find(backgroundColours, id);
    }
    bool doPropertiesApplyAtEditorLevel(EditorLevel const&) const override { return appliesAtLevel; }
    std::vector<Property> getPropertiesToBeEdited(PropertiesToBeEditedParams const&) const override
    {
        return rows;
    }
    std::map<std::string, std::vector<Property>> getDynamicProperties() const override { return dynamicRows; }
    bool isOkToAddProperty(PropertyId const& id) const override { return !unwanted.contains(id); }

private:
    static std::optional<attr::Colour> find(std::map<PropertyId, attr::Colour> const& colours,
                                            PropertyId const& id)
    {
        auto const found = colours.find(id);
        return found == colours.end() ? std::nullopt : std::optional(found->second);
    }
};

/// Notes what it is told, in order.
class ToyController final : public ui::edit::ObjectPropertyEditControllerBase
{
public:
    explicit ToyController(std::vector<std::string>& log)
        : m_log(log)
    {
    }

    std::map<PropertyId, std::vector<EnumeratedValue>> choices;
    OnPropertyChangedAction action = RegenerateObjectAndReloadProperties;
    bool permitsReset = true;
    std::function<void(PropertyId const&)> onClick;

    bool hasEnumeratedValues(PropertyId const& id) const override { return choices.contains(id); }
    std::vector<EnumeratedValue> getEnumeratedValues(PropertyId const& id) const override
    {
        auto const found = choices.find(id);
        return found == choices.end() ? std::vector<EnumeratedValue>() : found->second;
    }
    void onButtonClicked(PropertyId const& id, std::string const& key) override
    {
        m_log.push_back("clicked " + id.text() + " " + key);
        if (onClick)
            onClick(id);
    }
    OnPropertyChangedAction getOnPropertyChangedAction(PropertyId const&) const override { return action; }
    void onPropertyChanged(PropertyId const& id, PropertyValue const&) override
    {
        m_log.push_back("changed " + id.text());
    }
    void onPropertyChangedAfterObjectRegen(PropertyId const& id, PropertyValue const&) override
    {
        m_log.push_back("changed, regenerated " + id.text());
    }
    void onAfterPropertyUpdated(PropertyId const& id) override { m_log.push_back("updated " + id.text()); }
    bool onRequestToResetPropertyLocalValue(PropertyId const& id) override
    {
        m_log.push_back("may reset " + id.text());
        return permitsReset;
    }
    void onAfterResetPropertyLocalValue(PropertyId const& id) override
    {
        m_log.push_back("reset " + id.text());
    }
    void onResetPropertyLocalValueAfterObjectRegen(PropertyId const& id) override
    {
        m_log.push_back("reset, regenerated " + id.text());
    }
    void onPropertySelected(PropertyId const& id) override { m_log.push_back("selected " + id.text()); }
    void onPropertyDeselected(PropertyId const& id) override { m_log.push_back("deselected " + id.text()); }

private:
    std::vector<std::string>& m_log;
};

/// An object, what shows it, and both together.
struct ToyShown
{
    std::shared_ptr<ToyObject> object = std::make_shared<ToyObject>();
    std::shared_ptr<ToyEdit> edit = std::make_shared<ToyEdit>();
    std::shared_ptr<ui::edit::ShownObject> shown = std::make_shared<ui::edit::ShownObject>(object, edit);
};

} // namespace qev::test
