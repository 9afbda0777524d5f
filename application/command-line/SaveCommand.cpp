#include "Commands.h"
#include "FileAccess.h"

namespace qev::application {

ExitCode runSave(SaveOptions const& options)
{
    auto const file = openFile(options.file);
    return file ? saveFile(*file, options.output) : ExitCode::UnreadableFile;
}

} // namespace qev::application
