#pragma once

#include "Core/Attribute/Colour.h"
#include "Core/Utilities/Events/EventHandlerContainer.h"
#include "HostUiExport.h"
#include "Ui/Window/CheckState.h"
#include "Ui/Window/Controls/PropertyGridControl/ValueDisplayMode.h"

#include <cstddef>
#include <memory>
#include <string>

namespace qev::unit {
class QuantityPresentationBase;
}

namespace qev::ui {

class PropertyGridCheckBoxProperty;
class PropertyGridCustomButtonProperty;
class PropertyGridProperty;
class Window;

/// One row of a property grid as a back end keeps it. `PropertyGridProperty` says what each operation means.
class HOSTUI_EXPORT PropertyGridPropertyInterface
    : public std::enable_shared_from_this<PropertyGridPropertyInterface>
{
public:
    using ButtonClickedHandlers = EventHandlerContainer<Window, void, PropertyGridProperty&>;
    using CheckBoxClickedHandlers = EventHandlerContainer<Window, void, PropertyGridCheckBoxProperty&>;
    using CustomButtonClickedHandlers =
        EventHandlerContainer<Window, void, PropertyGridCustomButtonProperty&, std::string const&>;

    virtual ~PropertyGridPropertyInterface() = default;

    [[nodiscard]] virtual std::string getName() const = 0;
    virtual bool getStringValue(std::string& value) const = 0;
    virtual bool getDoubleValue(double& value) const = 0;
    virtual void setValue(std::string const& text, bool notify) = 0;

    [[nodiscard]] virtual bool hasQuantityPresentation() const = 0;
    virtual void setQuantityPresentation(std::unique_ptr<unit::QuantityPresentationBase> presentation) = 0;

    [[nodiscard]] virtual void* getUserData() const = 0;
    virtual void setUserData(void* userData) = 0;

    virtual void addSubProperty(std::shared_ptr<PropertyGridPropertyInterface> property) = 0;
    [[nodiscard]] virtual std::size_t getSubPropertyCount() const = 0;

    virtual void setDescription(std::string const& description) = 0;
    virtual void addOption(std::string const& text, bool enabled) = 0;
    virtual void setOptionsOnly(bool optionsOnly) = 0;
    virtual void allowEdit(bool allowed) = 0;
    virtual void enable(bool enabled) = 0;
    [[nodiscard]] virtual bool isEnabled() const = 0;
    virtual void setEmptyState(bool active) = 0;

    virtual void setHint(std::string const& hint) = 0;
    virtual void setBoldFontStyleForNameAndValue() = 0;
    virtual void setBackgroundColour(attr::Colour const& colour) = 0;
    virtual void setAlignment(int alignment) = 0;
    virtual void setHorizontalLine(int horizontalLine) = 0;
    virtual void setNameIndentationInCharacters(unsigned int characters) = 0;

    virtual void showButton(bool shown) = 0;
    [[nodiscard]] virtual ButtonClickedHandlers& getButtonClickedHandlers() = 0;

    [[nodiscard]] virtual CheckState getCheckState() const = 0;
    virtual void setValueDisplayMode(ValueDisplayMode mode) = 0;
    [[nodiscard]] virtual CheckBoxClickedHandlers& getCheckBoxClickedHandlers() = 0;

    [[nodiscard]] virtual CustomButtonClickedHandlers& getCustomButtonClickedHandlers() = 0;
};

} // namespace qev::ui
