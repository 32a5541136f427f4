// The texts that the toolkit itself shows, such as the buttons of message boxes, in the language of
// the user interface.
#pragma once

#include <filesystem>

namespace quendra {

/// Has the running application speak the language of the library that "language.ini" in `configDir`
/// names: the toolkit's own texts for "de" when the library is called "qdstring_de". They stay
/// English when the library's name ends in no language or the toolkit lacks that one.
void useToolkitLanguage(const std::filesystem::path& configDir);

}  // namespace quendra
