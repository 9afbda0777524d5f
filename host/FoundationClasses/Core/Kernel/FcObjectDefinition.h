#pragma once

#include "FoundationClasses/Core/Kernel/FcObjectDefinitionAttributes.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace qev::classification {
class ClassificationInterface;
}

namespace qev::fc::core::kernel {

/// IfcObjectDefinition: an object or a type, with its property sets and classifications.
///
/// The sets attached to an object or a context are those of its `IsDefinedBy` relations, the sets
/// attached to a type those of its `HasPropertySets`.
class HOSTFOUNDATIONCLASSES_EXPORT FcObjectDefinition : public FcObjectDefinitionAttributes
{
public:
    /// The attached set of this name and class, null when there is none. Never creates.
    /// \tparam T `FcPropertySet` or `FcElementQuantity`
    template <class T>
    [[nodiscard]] std::shared_ptr<T> getPropertySetDefinitionNonConst(std::string const& name)
    {
        return std::static_pointer_cast<T>(findSet(name, T::idFirst, T::idLast));
    }
    /// The attached set of this name and class; created, given a global id and attached when it is absent.
    template <class T>
    [[nodiscard]] std::shared_ptr<T> getOrCreatePropertySetDefinition(Data& data, std::string const& name)
    {
        if (auto existing = getPropertySetDefinitionNonConst<T>(name))
            return existing;
        auto created = std::make_shared<T>();
        attachNewSet(data, created, name);
        return created;
    }
    /// All attached sets of class \p T, in the order of the relations.
    template <class T>
    [[nodiscard]] std::vector<std::shared_ptr<T const>> getPropertySetDefinitions() const
    {
        std::vector<std::shared_ptr<T const>> sets;
        forEachAttachedSet([&sets](std::shared_ptr<FcBase> const& set) {
            if (auto found = entityCast<T>(set))
                sets.push_back(std::move(found));
            return true;
        });
        return sets;
    }
    /// All attached sets. A definition that cannot be read is left out.
    [[nodiscard]] std::vector<std::shared_ptr<FcBase>> attachedSets() const;
    /// Calls \p visit with each of them, in the same order, until it returns false. \p visit must not attach
    /// or detach sets.
    void forEachAttachedSet(std::function<bool(std::shared_ptr<FcBase> const&)> const& visit) const;
    /// Calls \p visit with the class number and the name of each of them, in the same order, until it returns
    /// false. The sets of an object, and the relations to them, that nobody has asked for yet stay records.
    void forEachAttachedSetName(
        std::function<bool(unsigned int classNumber, std::optional<std::string> const& name)> const& visit)
        const;

    /// Detaches the set of this name from this object; the set and its relation go with their last
    /// object. False when there is no such set.
    bool deletePropertySetDefinition(std::string const& name);

    /// Classifies this object. \p codes leads from the outermost to the chosen code; what the model
    /// has of the system and its references is used again.
    /// \returns the system's classification, null when there are no codes or this object is in no model.
    std::shared_ptr<resource::externalreference::FcClassification>
    classify(std::shared_ptr<classification::ClassificationInterface> const& system,
             std::vector<std::string> const& codes);
    /// The reference of this object into the system, null when it has none.
    [[nodiscard]] std::shared_ptr<resource::externalreference::FcClassificationReference const>
    getClassification(classification::ClassificationInterface const& system) const;

    /// The item of the predefined type, this object's own or else its type object's; "NOTDEFINED" when
    /// neither has one.
    [[nodiscard]] std::string predefinedTypeDerived() const;
    /// The user's own type text: the object's ObjectType, the type's ElementType and so on; this object's own
    /// or else its type object's.
    [[nodiscard]] std::optional<std::string> userDefinedTypeDerived() const;

    /// The object's own predefined type; null or empty when there is none.
    [[nodiscard]] virtual char const* getPredefinedTypeText() const;
    /// The object's ports, each once: those nested in it, then those attached to it by the older relation.
    [[nodiscard]] virtual std::vector<std::shared_ptr<productextension::FcPort>> getPorts() const;

protected:
    /// The type object, for the texts that fall back on it.
    [[nodiscard]] virtual std::shared_ptr<FcObjectDefinition const> typeOfThis() const;
    /// The own user-defined type text: the object's ObjectType, the type's ElementType or ProcessType.
    [[nodiscard]] std::optional<std::string> ownUserDefinedType() const;

private:
    [[nodiscard]] std::shared_ptr<FcBase> findSet(std::string_view name, unsigned int first,
                                                  unsigned int last) const;
    void attachNewSet(Data& data, std::shared_ptr<FcPropertySetDefinition> const& set,
                      std::string const& name);
    void detachFromRelations(std::shared_ptr<FcPropertySetDefinition> const& set);
};

} // namespace qev::fc::core::kernel
