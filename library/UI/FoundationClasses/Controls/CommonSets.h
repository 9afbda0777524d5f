#pragma once

#include "UI/FoundationClasses/Set/PropertySetDefinitionInfo.h"

#include <cstddef>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace qev::ifc::def {
class SchemaPset;
}
namespace qev::fc {
class FcBase;
}
namespace qev::fc::core::kernel {
class FcObjectDefinition;
}

namespace qev::fc::ui {

/// Works out which sets are shown for objects: those that the schema has for their classes, and those that
/// the objects have themselves.
///
/// What the schema has for a class is looked up once, and the sets of an object only where they can change
/// the answer: a selection may hold very many objects of few classes.
class CommonSets
{
public:
    /// By the name of the set, ascending.
    using SetInfos = std::map<std::string, PropertySetDefinitionInfo>;

    /// The schema is not owned; without one every class is unknown.
    explicit CommonSets(ifc::def::SchemaPset const* schemaPset);
    ~CommonSets();
    CommonSets(CommonSets const&) = delete;
    CommonSets& operator=(CommonSets const&) = delete;

    /// The sets that all object definitions among \p objects have, as the first of them has them. Other
    /// entities and null do not count. None when one object has no set; an object of a class that the schema
    /// does not know is reported, and is one without sets.
    [[nodiscard]] SetInfos of(std::vector<std::shared_ptr<FcBase>> const& objects);

private:
    /// What is known of the objects of one class and predefined type.
    struct ObjectKind
    {
        bool isInSchema = false;
        /// The sets that the schema has for them.
        SetInfos infos;
        /// The common sets that are not among those, and how many common sets there were then.
        std::vector<std::string> missing;
        std::size_t commonCount = 0;
    };

    /// Takes out of \p common what \p object does not have. False when it has no set at all.
    [[nodiscard]] static bool narrow(SetInfos& common, core::kernel::FcObjectDefinition const& object,
                                     ObjectKind& kind);
    [[nodiscard]] ObjectKind& kindOf(core::kernel::FcObjectDefinition const& object);
    [[nodiscard]] ObjectKind makeKind(core::kernel::FcObjectDefinition const& object) const;

    ifc::def::SchemaPset const* m_schemaPset;
    /// By type number and predefined type.
    std::map<std::pair<unsigned int, std::optional<std::string>>, ObjectKind> m_kinds;
};

} // namespace qev::fc::ui
