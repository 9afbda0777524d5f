#include "UI/FoundationClasses/Property/FcValueBase.h"

#include "Core/Unit/QuantityPresentation.h"
#include "Format/Ifc/Schema/Attribute.h"
#include "Format/Ifc/Schema/AttributeBase.h"
#include "Format/Ifc/Schema/DataTypeEnum.h"
#include "FoundationClasses/FcBase.h"
#include "FoundationClasses/Resource/Measure/FcValue.h"
#include "UI/FoundationClasses/LocalizedText.h"
#include "UI/FoundationClasses/NumberTexts.h"
#include "UI/FoundationClasses/Property/MeasurePresentation.h"

#include <exception>
#include <utility>

namespace qev::fc::ui {

FcValueBase::FcValueBase(ifc::def::schema::Attribute const& attribute, FcBase const& object,
                         std::vector<std::string> contexts)
    : m_attribute(attribute)
    , m_object(object)
    , m_contexts(std::move(contexts))
{
}

FcValueBase::~FcValueBase() = default;

bool FcValueBase::isAllowedToEdit() const { return false; }

bool FcValueBase::isValidValue() const { return false; }

bool FcValueBase::updateValue(Data& /*data*/, PropertyOrQuantityValue const& /*value*/) { return false; }

std::string FcValueBase::getName() const { return getActiveValueDefinition().name(); }

std::string FcValueBase::getDescription() const { return getPropertyTypeName(); }

std::string FcValueBase::getLocalizedName() const { return localizedText(m_contexts, getName()); }

std::string FcValueBase::getLocalizedDescription() const
{
    return localizedText(m_contexts, getName() + "_Description", [this] { return getDescription(); });
}

std::string FcValueBase::getValue() const
{
    if (!m_attribute.isSimple())
        return {};
    return m_object.getAttributeAsString(m_attribute.name()).value_or(std::string());
}

std::string FcValueBase::getPropertySetName() const { return m_object.getEntityName(); }

void FcValueBase::onPropertyCustomButtonClicked() {}

std::string FcValueBase::getPropertyTypeName() const { return getActiveValueDefinition().typeName(); }

ifc::def::schema::Attribute const& FcValueBase::getActiveValueDefinition() const { return m_attribute; }

resource::measure::FcValue const& FcValueBase::getFcValue() const
{
    static resource::measure::FcValue const empty;
    return empty;
}

std::optional<double> FcValueBase::valueAsDoubleGet() const
{
    try {
        return leadingNumber(getValue());
    } catch (std::exception const&) {
        return std::nullopt;
    }
}

std::optional<double> FcValueBase::getAsSiUnit(Data const& data) const
{
    if (!m_attribute.isSimple())
        return std::nullopt;
    try {
        return m_object.getAttributeAsSiUnit(data, m_attribute.name());
    } catch (std::exception const&) {
        return std::nullopt;
    }
}

std::unique_ptr<unit::QuantityPresentationBase> FcValueBase::quantityPresentation() const
{
    return presentationOfAttributeMeasure(getPropertyTypeName());
}

std::optional<std::vector<std::string>> FcValueBase::enumValues() const
{
    if (ifc::AttributeBase::TypeFromSchemaAttribute(m_attribute) != ifc::AttributeType::Enumeration)
        return std::nullopt;
    auto const* const type = m_attribute.declaredTypes().front().dataType;
    auto const* const enumeration = dynamic_cast<ifc::def::schema::DataTypeEnum const*>(type);
    if (!enumeration)
        return std::nullopt;
    return enumeration->values();
}

} // namespace qev::fc::ui
