#pragma once

#include "Core/Attribute/Colour.h"
#include "Edit/EditorLevel.h"
#include "Edit/Property.h"
#include "HostEditExport.h"
#include "Object/PropertyId.h"

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace qev::ui {
struct Image;
}

namespace qev::ui::edit {

/// Tells the generic object editor what to show of one object: which rows, in which tree, what can be edited,
/// and which buttons stand in a row. The values themselves come from the object's
/// `object::PropertyInterface`.
class HOSTEDIT_EXPORT ObjectPropertyEditInterface
{
public:
    using PropertyId = object::PropertyId;
    using EditorLevel = edit::EditorLevel;

    /// A button in a row.
    struct PropertyButton
    {
        /// What `ObjectPropertyEditControllerBase::onButtonClicked` is given; may be empty.
        std::string key;
        std::shared_ptr<Image> image;
        /// Shown as the mouse rests on the button; may be empty.
        std::string tooltip;

        friend bool operator==(PropertyButton const&, PropertyButton const&) = default;
    };

    /// What the editor tells when it asks for rows.
    struct PropertiesToBeEditedParams
    {
        EditorLevel level;
    };

    ObjectPropertyEditInterface() = default;
    virtual ~ObjectPropertyEditInterface();
    ObjectPropertyEditInterface(ObjectPropertyEditInterface const&) = delete;
    ObjectPropertyEditInterface& operator=(ObjectPropertyEditInterface const&) = delete;

    /// Whether the row can be used at all.
    virtual bool isEnabled(PropertyId const& id) const = 0;
    /// Whether the value cannot be edited in the row itself.
    virtual bool isReadOnly(PropertyId const& id) const = 0;
    /// Whether nothing of the object can be edited; false unless overridden.
    virtual bool isReadOnlyObject() const;
    /// The buttons of the row, from left to right.
    virtual std::vector<PropertyButton> getButtons(PropertyId const& id) const = 0;
    virtual std::optional<attr::Colour> getTextColour(PropertyId const& id) = 0;
    virtual std::optional<attr::Colour> getBackgroundColour(PropertyId const& id) = 0;
    /// Whether the object has rows on \p level; true unless overridden.
    virtual bool doPropertiesApplyAtEditorLevel(EditorLevel const& level) const;
    /// The rows at the top, with all that stands below them.
    virtual std::vector<Property> getPropertiesToBeEdited(PropertiesToBeEditedParams const& params) const = 0;
    /// Lets the object change the rows that a configuration of the editor placed on \p level; leaves them as
    /// they are unless overridden.
    virtual void onPropertiesFetchedFromConfiguration(EditorLevel const& level,
                                                      std::vector<Property>& properties) const;
    /// Rows whose number the configuration of an editor cannot know, by the name of the row that they belong
    /// to.
    virtual std::map<std::string, std::vector<Property>> getDynamicProperties() const = 0;
    /// Whether the editor may add the row to those that a configuration placed; true unless overridden.
    virtual bool isOkToAddProperty(PropertyId const& id) const;

    /// The pictures of the usual buttons. A program with pictures of its own sets them before it shows an
    /// editor; they are never null until then.
    static std::shared_ptr<Image>& getDefaultButtonImage();
    static std::shared_ptr<Image>& getAddItemButtonImage();
    static std::shared_ptr<Image>& getDeleteButtonImage();
    static std::shared_ptr<Image>& getOpenInExternalAppButtonImage();
};

} // namespace qev::ui::edit
