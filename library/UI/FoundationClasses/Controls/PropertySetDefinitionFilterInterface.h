#pragma once

#include "QevFoundationClassesUiExport.h"

#include <memory>
#include <string>

namespace qev::fc {
class FcBase;
}

namespace qev::fc::ui {

/// Decides for the host what a control shows at all.
class QEVFOUNDATIONCLASSESUI_EXPORT PropertySetDefinitionFilterInterface
{
public:
    virtual ~PropertySetDefinitionFilterInterface();

    /// The first of the objects that a control is about to show. May come more than once for the same object.
    virtual void setObject(std::shared_ptr<FcBase> object) = 0;
    /// Asked with the names of sets, and with the group names "Instance Attributes" and "Type Attributes".
    [[nodiscard]] virtual bool isSetIncluded(std::string const& setName) const = 0;
    [[nodiscard]] virtual bool isPropertyIncluded(std::string const& setName,
                                                  std::string const& propertyName) const = 0;
};

} // namespace qev::fc::ui
