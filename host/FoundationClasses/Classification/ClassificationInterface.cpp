#include "FoundationClasses/Classification/ClassificationInterface.h"

namespace qev::classification {

std::string ClassificationInterface::getTitle(std::string_view /*code*/) const { return {}; }

std::string ClassificationInterface::getSource() const { return {}; }

std::string ClassificationInterface::getEdition() const { return {}; }

} // namespace qev::classification
