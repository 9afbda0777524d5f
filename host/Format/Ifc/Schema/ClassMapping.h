#pragma once

#include "Format/Ifc/Schema/Entity.h"
#include "Format/Ifc/Schema/ValueForm.h"

namespace qev::ifc {

/// How the instances of one class of a file stand in the model.
///
/// A slot is the position of a parameter of an instance, counted from 0.
class HOSTIFCSCHEMA_EXPORT ClassMapping
{
public:
    enum class Grade : std::uint8_t
    {
        /// The attributes can be taken over.
        Same,
        /// The class has become another one; some of its attributes mean something else there.
        Convert,
        /// The model has no counterpart.
        None
    };

    static constexpr int noSlot = -1;

    /// The class as the file knows it; it carries the keyword and the attributes with their types.
    [[nodiscard]] def::schema::Entity const& fileEntity() const { return *m_fileEntity; }
    /// The nearest class of the model; null when there is none. Abstract only for a class that is abstract in
    /// the file's version too.
    [[nodiscard]] def::schema::Entity const* modelEntity() const { return m_modelEntity; }
    /// The number of `modelEntity`; 0 when there is none, or when it cannot be instantiated.
    [[nodiscard]] std::uint16_t classNumber() const { return m_classNumber; }
    [[nodiscard]] Grade grade() const { return m_grade; }
    /// True when every slot of the file is the same slot of the model and the other way round.
    [[nodiscard]] bool isIdentity() const { return m_isIdentity; }

    /// How many parameters an instance has in the file, and in the model.
    [[nodiscard]] std::size_t fileSlotCount() const { return m_modelSlots.size(); }
    [[nodiscard]] std::size_t modelSlotCount() const { return m_fileSlots.size(); }
    /// The slot of the file that a slot of the model is read from; `noSlot` when the file has none.
    [[nodiscard]] int fileSlot(std::size_t modelSlot) const;
    /// The slot of the model that a slot of the file is read into; `noSlot` when it is not.
    [[nodiscard]] int modelSlot(std::size_t fileSlot) const;
    /// The attribute of the file behind a slot of the model; null when the file has none.
    [[nodiscard]] def::schema::Attribute const* fileAttribute(std::size_t modelSlot) const;
    /// The attribute of a slot of the model; null beyond the last one.
    [[nodiscard]] def::schema::Attribute const* modelAttribute(std::size_t modelSlot) const;

    /// True when the file writes the value of a slot of the model in another form than the model's own
    /// version would. False also when the file has no such slot.
    [[nodiscard]] bool changesValueForm(std::size_t modelSlot) const;

private:
    friend class VersionSchema;
    ClassMapping() = default;

    def::schema::Entity const* m_fileEntity = nullptr;
    def::schema::Entity const* m_modelEntity = nullptr;
    std::uint16_t m_classNumber = 0;
    Grade m_grade = Grade::None;
    bool m_isIdentity = false;
    std::vector<std::int16_t> m_fileSlots;
    std::vector<std::int16_t> m_modelSlots;
};

} // namespace qev::ifc
