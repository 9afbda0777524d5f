#include "Edit/ObjectPropertyEditInterface.h"

#include "Ui/Window/Image.h"

namespace qev::ui::edit {

ObjectPropertyEditInterface::~ObjectPropertyEditInterface() = default;

bool ObjectPropertyEditInterface::isReadOnlyObject() const { return false; }

bool ObjectPropertyEditInterface::doPropertiesApplyAtEditorLevel(EditorLevel const&) const { return true; }

void ObjectPropertyEditInterface::onPropertiesFetchedFromConfiguration(EditorLevel const&,
                                                                       std::vector<Property>&) const
{
}

bool ObjectPropertyEditInterface::isOkToAddProperty(PropertyId const&) const { return true; }

std::shared_ptr<Image>& ObjectPropertyEditInterface::getDefaultButtonImage()
{
    static auto image = std::make_shared<Image>(Image{"edit"});
    return image;
}

std::shared_ptr<Image>& ObjectPropertyEditInterface::getAddItemButtonImage()
{
    static auto image = std::make_shared<Image>(Image{"add"});
    return image;
}

std::shared_ptr<Image>& ObjectPropertyEditInterface::getDeleteButtonImage()
{
    static auto image = std::make_shared<Image>(Image{"delete"});
    return image;
}

std::shared_ptr<Image>& ObjectPropertyEditInterface::getOpenInExternalAppButtonImage()
{
    static auto image = std::make_shared<Image>(Image{"open"});
    return image;
}

} // namespace qev::ui::edit
