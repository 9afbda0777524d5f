#pragma once

#include <stdexcept>
#include <string>

namespace qev::schemacompiler {

/// A mistake in an input file; the text names the file and, where there is one, the line.
class InputError : public std::runtime_error
{
public:
    InputError(std::string const& file, unsigned int line, std::string const& message)
        : std::runtime_error(line == 0 ? file + ": " + message
                                       : file + ":" + std::to_string(line) + ": " + message)
    {
    }
};

} // namespace qev::schemacompiler
