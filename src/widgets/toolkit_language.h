// The language of the user interface, and the texts that the toolkit itself shows in it, such as
// the buttons of message boxes.
#pragma once

#include <filesystem>
#include <string>

namespace quendra {

/// The language of the library that "language.ini" in `configDir` names: "de" for "qdstring_de",
/// empty for "qdstring".
[[nodiscard]] std::string interfaceLanguage(const std::filesystem::path& configDir);

/// Has the running application speak the language of the library that "language.ini" in `configDir`
/// names: the toolkit's own texts for "de" when the library is called "qdstring_de". They stay
/// English when the library's name ends in no language or the toolkit lacks that one.
void useToolkitLanguage(const std::filesystem::path& configDir);

}  // namespace quendra
