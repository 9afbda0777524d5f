#pragma once

#include "FoundationClasses/Classification/ClassificationInterface.h"
#include "HostClassificationExport.h"

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace qev::classification {

/// One code of a system of classification.
struct ClassificationCode
{
    std::string code;
    std::string title;
    std::string description;
    /// The code that this one stands below; empty at the top.
    std::string parent;

    friend bool operator==(ClassificationCode const&, ClassificationCode const&) = default;
};

/// What is to be said of a whole system of classification.
struct ClassificationSystemInfo
{
    std::string name;
    std::string description;
    /// Who publishes it.
    std::string source;
    std::string edition;

    friend bool operator==(ClassificationSystemInfo const&, ClassificationSystemInfo const&) = default;
};

/// A system of classification whose codes are all known: a forest, in the order of its source.
class HOSTCLASSIFICATION_EXPORT ClassificationSystem final : public ClassificationInterface
{
public:
    /// No two of \p codes have the same code. A code whose parent is unknown, or leads back to itself, stands
    /// at the top.
    ClassificationSystem(ClassificationSystemInfo info, std::vector<ClassificationCode> codes);
    ~ClassificationSystem() override;

    [[nodiscard]] std::string getKey() const override { return m_info.name; }
    [[nodiscard]] std::string getDescription() const override { return m_info.description; }
    [[nodiscard]] std::string getTitle(std::string_view code) const override;
    [[nodiscard]] std::string getSource() const override { return m_info.source; }
    [[nodiscard]] std::string getEdition() const override { return m_info.edition; }

    [[nodiscard]] std::vector<ClassificationCode> const& getCodes() const { return m_codes; }
    /// Null for an unknown code.
    [[nodiscard]] ClassificationCode const* find(std::string_view code) const;
    /// The codes directly below \p parent, or those at the top for an empty one.
    [[nodiscard]] std::vector<std::string> getChildren(std::string_view parent) const;
    /// The codes from the top down to \p code; empty for an unknown one.
    [[nodiscard]] std::vector<std::string> getPath(std::string_view code) const;
    /// The codes that have all words of \p text in their code, title or description, whatever their case.
    [[nodiscard]] std::vector<std::string> search(std::string_view text) const;

private:
    void cutCircles();

    ClassificationSystemInfo m_info;
    std::vector<ClassificationCode> m_codes;
    std::map<std::string, std::size_t, std::less<>> m_places;
    std::map<std::string, std::vector<std::string>, std::less<>> m_children;
};

} // namespace qev::classification
