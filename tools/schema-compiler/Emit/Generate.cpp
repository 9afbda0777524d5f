#include "Emit/Generate.h"

#include "Emit/AttributeTypes.h"
#include "Emit/ClassLists.h"
#include "Emit/EntityHeader.h"
#include "Emit/Enumerations.h"
#include "Emit/GroupSource.h"
#include "Emit/Selects.h"
#include "Emit/ValueTypes.h"
#include "Emit/Visitors.h"

namespace qev::schemacompiler {

GeneratedFiles generate(ClassModel const& model)
{
    GeneratedFiles files;
    emitEntityHeaders(model, files);
    emitGroupSources(model, files);
    emitEnumerations(model, files);
    emitSelects(model, files);
    emitValueTypes(model, files);
    emitVisitors(model, files);
    emitClassLists(model, files);
    emitAttributeTypes(model, files);
    return files;
}

} // namespace qev::schemacompiler
