#pragma once

#include <memory>
#include <string>
#include <variant>

namespace qev::fc {
class FcBase;
}

namespace qev::fc::ui::propertyinterface {

/// What a property leads to: nothing, an entity of the model, or the address of something outside of it.
using EntityReference = std::variant<std::monostate, std::shared_ptr<FcBase const>, std::string>;

} // namespace qev::fc::ui::propertyinterface
