#pragma once

#include "Edit/ObjectPropertyEditControllerBase.h"
#include "Edit/ShownObject.h"
#include "Ui/PropertyGrid/PropertyGridInput.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace qev::unit {
class QuantityPresentationBase;
}

namespace qev::ui::edit {

/// One property of all shown objects together: what it holds, what input to it means, and why an input is
/// refused.
///
/// It asks the objects anew with each question. The objects and the controller must outlive it.
class HOSTEDIT_EXPORT EditorProperty
{
public:
    enum class Kind
    {
        Text,
        Integer,
        Number,
        Boolean,
        /// One of the values that the controller knows.
        Choice
    };

    using PropertyId = object::PropertyId;
    using PropertyValue = object::PropertyValue;
    using Choices = std::vector<ObjectPropertyEditControllerBase::EnumeratedValue>;

    EditorProperty(ShownObjects const& objects, ObjectPropertyEditControllerBase const& controller,
                   PropertyId id);

    /// The label that the first object gives; the last segment of the id where it gives none.
    [[nodiscard]] std::string getLabel() const;
    /// The description, what is said of the value, and what is wrong with it, a line each.
    [[nodiscard]] std::string getDescription() const;

    [[nodiscard]] bool isEnabled() const;
    /// True when one of the objects does not take another value.
    [[nodiscard]] bool isReadOnly() const;
    /// True when the property can be without a value in all objects.
    [[nodiscard]] bool isEmptyAllowed() const;
    /// True when one of the objects holds a value of its own.
    [[nodiscard]] bool isLocalValue() const;
    /// True when the value leads to something in all objects.
    [[nodiscard]] bool isReference() const;

    [[nodiscard]] Kind getKind() const;
    /// True when the objects hold values that differ.
    [[nodiscard]] bool isMixed() const;
    /// The value of the first object.
    [[nodiscard]] PropertyValue getValue() const;
    /// The common value for people, without regard to a unit; empty when there is none, or values differ.
    [[nodiscard]] std::string getText() const;
    /// The common number in internal units.
    [[nodiscard]] std::optional<double> getNumber() const;
    /// The values to choose from: those of a choice, else those that are merely suggested.
    [[nodiscard]] Choices getChoices() const;
    [[nodiscard]] std::unique_ptr<unit::QuantityPresentationBase> createQuantityPresentation() const;

    /// Why \p input is refused, for the user; nothing when all objects take it.
    [[nodiscard]] std::optional<std::string> findObjection(PropertyGridInput const& input) const;
    /// Gives all objects that understand \p input the value that it means for them. Whether they may be
    /// changed is the caller's to ask (`isReadOnly`). \returns what the first was given
    PropertyValue write(PropertyGridInput const& input) const;
    /// Lets all objects that hold a value of their own take it over again.
    void reset() const;

private:
    /// A value of the kind that inputs are brought to for an object that holds \p value.
    [[nodiscard]] PropertyValue getLike(PropertyValue const& value) const;
    /// The value that \p input means for an object that holds values like \p like; nothing when it is not
    /// understood.
    [[nodiscard]] std::optional<PropertyValue> interpret(PropertyGridInput const& input,
                                                         PropertyValue const& like) const;
    /// The value of an input that is more than a typed text; nothing for one that is no more.
    [[nodiscard]] std::optional<PropertyValue> findValueOf(PropertyGridInput const& input) const;
    [[nodiscard]] std::string describeRefusal(PropertyGridInput const& input) const;

    ShownObjects const& m_objects;
    ObjectPropertyEditControllerBase const& m_controller;
    PropertyId m_id;
};

} // namespace qev::ui::edit
