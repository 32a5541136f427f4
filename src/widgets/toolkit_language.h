// The texts that the toolkit itself shows, such as the buttons of message boxes.
#pragma once

#include <string>

namespace quendra {

/// Has the toolkit in the running application speak this language ("de"), that of the language
/// library. It stays English for an empty one and for one that the toolkit lacks.
void useToolkitLanguage(const std::string& language);

}  // namespace quendra
