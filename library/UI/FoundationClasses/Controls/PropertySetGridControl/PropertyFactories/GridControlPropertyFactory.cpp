#include "UI/FoundationClasses/Controls/PropertySetGridControl/PropertyFactories/GridControlPropertyFactory.h"

namespace qev::fc::ui {

GridControlPropertyFactory::~GridControlPropertyFactory() = default;

} // namespace qev::fc::ui
