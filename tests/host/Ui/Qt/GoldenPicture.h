#pragma once

#include <filesystem>
#include <QImage>

namespace qev::test {

/// Expects \p picture to look like the reviewed one in \p golden, or writes it there when recording.
///
/// Letters look different where other fonts or another version of Qt draw them. A picture remembers how
/// they looked when it was recorded; where they look different now the test is skipped.
void expectGoldenPicture(QImage picture, std::filesystem::path const& golden);

} // namespace qev::test
