#include "UI/FoundationClasses/Set/PropertyTypePropertySetAndPropertyNameQppOverrideInterface.h"

namespace qev::fc::ui {

PropertyTypePropertySetAndPropertyNameQppOverrideInterface::
    ~PropertyTypePropertySetAndPropertyNameQppOverrideInterface() = default;

} // namespace qev::fc::ui
