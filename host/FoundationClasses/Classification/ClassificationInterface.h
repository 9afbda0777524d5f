#pragma once

#include "Core/Plugin/BaseInterface.h"
#include "HostFoundationClassesExport.h"

#include <string>
#include <string_view>

namespace qev::classification {

/// A plug-in that offers a system of classification.
class HOSTFOUNDATIONCLASSES_EXPORT ClassificationInterface : public plugin::BaseInterface
{
public:
    /// The key of the system, which is also the name of its classification in a model.
    [[nodiscard]] virtual std::string getKey() const = 0;
    /// A further text about the system, for people.
    [[nodiscard]] virtual std::string getDescription() const = 0;

    /// What a code stands for; empty unless overridden, and for unknown codes.
    [[nodiscard]] virtual std::string getTitle(std::string_view code) const;
    /// Who publishes the system; empty unless overridden.
    [[nodiscard]] virtual std::string getSource() const;
    /// The edition of the system; empty unless overridden.
    [[nodiscard]] virtual std::string getEdition() const;
};

} // namespace qev::classification
