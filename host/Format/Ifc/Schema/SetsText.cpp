#include "Format/Ifc/Schema/SetsText.h"

#include "Core/String/Ascii.h"
#include "Format/Ifc/Schema/Pset/PropertySetDef.h"
#include "Format/Ifc/Schema/Pset/TypePropertyBoundedValue.h"
#include "Format/Ifc/Schema/Pset/TypePropertyEnumeratedValue.h"
#include "Format/Ifc/Schema/Pset/TypePropertyListValue.h"
#include "Format/Ifc/Schema/Pset/TypePropertyTableValue.h"
#include "Format/Ifc/Schema/Qto/QuantitySetDef.h"
#include "Format/Ifc/Schema/TextScanner.h"

namespace qev::ifc::def {

namespace {

class SetsTextReader
{
public:
    explicit SetsTextReader(std::string_view text)
        : m_lines(text)
    {
    }

    SetsTextResult read()
    {
        while (m_lines.next()) {
            if (m_lines.isIndented())
                readMember(m_lines.line());
            else
                readDeclaration(m_lines.line());
        }
        finishSet();
        m_result.context.isStandard = true;
        return std::move(m_result);
    }

private:
    struct Enumeration
    {
        std::string_view valueType;
        std::vector<std::string> values;
    };

    void readDeclaration(std::string_view line)
    {
        finishSet();
        WordScanner words(line);
        std::string_view const keyword = words.next();
        if (keyword == "sets")
            m_result.context.name = words.next();
        else if (keyword == "enumeration")
            readEnumeration(words);
        else if (keyword == "chapter")
            m_chapter = words.next();
        else if (keyword == "set")
            readSet(words);
        else
            fail("A declaration is expected.");
    }

    void readEnumeration(WordScanner& words)
    {
        std::string_view const name = words.next();
        Enumeration enumeration;
        enumeration.valueType = words.next();
        if (words.next() != "=") {
            fail("A name, a value type, \"=\" and values are expected.");
            return;
        }
        while (!words.atEnd())
            enumeration.values.emplace_back(words.next());
        if (!m_enumerations.emplace(name, std::move(enumeration)).second)
            fail("The enumeration is declared twice.");
    }

    void readSet(WordScanner& words)
    {
        std::string const name(words.next());
        std::string_view const templateType = words.next();
        if (name.empty() || templateType.empty() || !words.atEnd()) {
            fail("The name and the template type of a set are expected.");
            return;
        }
        std::unique_ptr<xml::SetDef> set;
        if (templateType.starts_with("QTO_")) {
            auto quantities = std::make_unique<qto::QuantitySetDef>(name);
            m_quantitySet = quantities.get();
            set = std::move(quantities);
        } else {
            auto properties = std::make_unique<pset::PropertySetDef>(name);
            m_propertySet = properties.get();
            set = std::move(properties);
        }
        set->templateType = xml::templateTypeFromName(templateType);
        set->templateTypeName = templateType;
        set->chapter = m_chapter;
        m_set = std::move(set);
    }

    void readMember(std::string_view line)
    {
        if (!m_set) {
            fail("A set is expected before its entries.");
            return;
        }
        WordScanner words(line);
        std::string_view const name = words.next();
        std::string_view const second = words.next();
        if (name == "for" && words.atEnd() && !second.empty())
            readApplicableClass(second);
        else if (second == ":" && m_propertySet)
            readProperty(name, words);
        else if (second == ":")
            readQuantity(name, words);
        else
            fail("An applicable class or an entry is expected.");
    }

    void readApplicableClass(std::string_view text)
    {
        std::size_t const slash = text.find('/');
        xml::ApplicableClass applicable{std::string(text.substr(0, slash)), {}};
        if (slash != std::string_view::npos)
            applicable.predefinedType = text.substr(slash + 1);
        m_set->applicableClasses.push_back(std::move(applicable));
    }

    void readProperty(std::string_view name, WordScanner& words)
    {
        std::unique_ptr<pset::PropertyType> type = readPropertyType(words);
        if (!type)
            fail("The kind of a property with its types is expected.");
        else {
            auto property =
                std::make_unique<pset::PropertyDef>(*m_propertySet, std::string(name), std::move(type));
            // The names of the standard are English; without a dictionary they are what people should see.
            property->nameAliases.set(locale::Locale::get(1), name);
            m_propertySet->propertyDefs.push_back(std::move(property));
        }
    }

    std::unique_ptr<pset::PropertyType> readPropertyType(WordScanner& words)
    {
        std::string_view const kind = words.next();
        std::string const first(words.next());
        std::string const second(words.next());
        bool const hasTwo = !second.empty();
        if (first.empty() || !words.atEnd() || hasTwo != (kind == "table"))
            return nullptr;
        if (kind == "single")
            return std::make_unique<pset::TypePropertySingleValue>(first);
        if (kind == "bounded")
            return std::make_unique<pset::TypePropertyBoundedValue>(first);
        if (kind == "list")
            return std::make_unique<pset::TypePropertyListValue>(first);
        if (kind == "ref")
            return std::make_unique<pset::TypePropertyReferenceValue>(first);
        if (kind == "table")
            return std::make_unique<pset::TypePropertyTableValue>(first, second);
        return kind == "enum" ? enumeratedType(first) : nullptr;
    }

    std::unique_ptr<pset::PropertyType> enumeratedType(std::string const& name)
    {
        auto const found = m_enumerations.find(name);
        if (found == m_enumerations.end())
            return nullptr;
        auto type = std::make_unique<pset::TypePropertyEnumeratedValue>(name, found->second.values);
        type->valueType = found->second.valueType;
        return type;
    }

    void readQuantity(std::string_view name, WordScanner& words)
    {
        std::string const kind = "Q_" + str::toUpper(words.next());
        std::unique_ptr<qto::QuantityType> type = qto::quantityTypeFromKind(kind);
        if (!type || !words.atEnd())
            fail("The kind of a quantity is expected.");
        else
            m_quantitySet->quantityDefs.push_back(
                std::make_unique<qto::QuantityDef>(*m_quantitySet, std::string(name), std::move(type)));
    }

    void finishSet()
    {
        m_propertySet = nullptr;
        m_quantitySet = nullptr;
        if (m_set && !m_result.definitions.add(std::move(m_set)))
            fail("The set before this line is declared twice.");
        m_set.reset();
    }

    void fail(std::string message) { m_result.errors.push_back({m_lines.number(), std::move(message)}); }

    LineScanner m_lines;
    SetsTextResult m_result;
    std::unordered_map<std::string_view, Enumeration> m_enumerations;
    std::string_view m_chapter;
    // The set being read; exactly one of the two views of it is set.
    std::unique_ptr<xml::SetDef> m_set;
    pset::PropertySetDef* m_propertySet = nullptr;
    qto::QuantitySetDef* m_quantitySet = nullptr;
};

} // namespace

SetsTextResult parseSets(std::string_view text) { return SetsTextReader(text).read(); }

} // namespace qev::ifc::def
