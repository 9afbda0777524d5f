#pragma once

#include <filesystem>
#include <string_view>

namespace qev::test {

/// True when golden files are to be written instead of compared: with QEV_RECORD_GOLDEN in the environment.
[[nodiscard]] bool isRecordingGolden();

/// Expects \p text to be what the file \p golden holds, or writes it there when recording.
void expectGolden(std::string_view text, std::filesystem::path const& golden);

} // namespace qev::test
