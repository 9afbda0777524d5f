#pragma once

#include "QevFoundationClassesUiExport.h"
#include "UI/FoundationClasses/PropertyOrQuantityValue.h"

#include <string>

namespace qev::fc {
class Data;
}

namespace qev::fc::ui {

/// One displayed property of one or more objects: reads one text out of all of them, and writes one value
/// into all of them.
///
/// Nothing is cached: each call reads the model as it is.
class QEVFOUNDATIONCLASSESUI_EXPORT PropertyInterface
{
public:
    PropertyInterface() = default;
    virtual ~PropertyInterface();
    PropertyInterface(PropertyInterface const&) = delete;
    PropertyInterface& operator=(PropertyInterface const&) = delete;

    /// Tells if the user may change the value in place.
    [[nodiscard]] virtual bool isAllowedToEdit() const = 0;
    /// Tells if this kind of value can check what the user types.
    [[nodiscard]] virtual bool isValidValue() const = 0;
    /// Writes \p value into all objects, in their order.
    ///
    /// The first object that refuses it ends the work with false; the objects before it keep their new value.
    /// Without objects nothing happens, and the result is false. Some kinds of value let the exceptions of
    /// the standard library's number parsing pass.
    virtual bool updateValue(Data& data, PropertyOrQuantityValue const& value) = 0;
    [[nodiscard]] virtual std::string getName() const = 0;
    [[nodiscard]] virtual std::string getDescription() const = 0;
    [[nodiscard]] virtual std::string getLocalizedName() const = 0;
    [[nodiscard]] virtual std::string getLocalizedDescription() const = 0;
    /// The text that all objects agree on; for most kinds of value empty when they do not.
    [[nodiscard]] virtual std::string getValue() const = 0;
    [[nodiscard]] virtual std::string getPropertySetName() const = 0;
    /// The button of the row was pressed.
    virtual void onPropertyCustomButtonClicked() = 0;
};

} // namespace qev::fc::ui
