// This program's file, and other programs: started and left alone.
#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace quendra {

/// The file of the program that runs, links followed; empty when the system does not tell.
[[nodiscard]] std::filesystem::path programFile();

/// From now on the system makes no core file of this process, in which everything would lie that it
/// has read.
void forbidCoreFile();

/// Does `work` in a process of its own, a copy of this one, and waits for it. True when it came
/// back; a failure that ends it ends nothing else, and leaves no core file. For a process of one
/// thread.
[[nodiscard]] bool runApart(const std::function<void()>& work);

/// Starts a program, looked for on $PATH when its name holds no "/", with its arguments. It runs in
/// a session of its own in the current directory with this process's variables and none of its open
/// files, reads from and writes to nothing, and lives on when this process ends; nobody waits for
/// it. Gives none once the program runs, or the system's words for why it does not.
[[nodiscard]] std::optional<std::string> startDetached(const std::string& program,
                                                       const std::vector<std::string>& arguments);

/// Hands a web address to the desktop's opener: xdg-open, else gio. None when one of them runs;
/// whether it finds a browser is not known. An address that begins with "-" is refused, since an
/// opener would take it for an option.
[[nodiscard]] std::optional<std::string> openWebPage(const std::string& address);

}  // namespace quendra
