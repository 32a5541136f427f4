// A small manual in a folder of its own, for tests.
#pragma once

#include "help/manual.h"
#include "support/temporary_folder.h"

#include <fstream>
#include <string>

namespace quendra::test {

/// Laid out as an installation: programs in bin(), the manual beside it.
class MadeUpManual {
  public:
    MadeUpManual() {
        std::filesystem::create_directories(bin());
        write("en/index.md",
              "# The editor\n\nAbout **scripts**.\n\n## Commands\n\n- [Beep](beep.md) makes a "
              "noise\n- Waiting\n  - [Wait_For](wait-for.md)\n  - [Wait](wait.md)\n\n"
              "## Host types\n\n- [Mainframe](mainframe.md)\n  - [Keys](keys.md)\n");
        write("en/beep.md",
              "# Beep\n\nMakes a *noise*. See [Wait_For](wait-for.md#options), "
              "[the site](https://quendra.example/a?b=c) and [nothing](nowhere.md).\n");
        std::string scrolled;
        for (int i = 0; i < 60; ++i)
            scrolled += "A line to scroll over.\n\n";
        write("en/wait-for.md",
              "# Wait_For\n\nWaits for a text on the screen; timeout in seconds.\n\n"
              "```\nWait_For \"READY\"\nBeep\n```\n\n" +
                  scrolled + "## Options\n\nCase matters.\n");
        write("en/wait.md", "# Wait\n\nWaits for seconds; a timeout is another matter.\n");
        write("en/mainframe.md", "# Mainframe\n\nHas a beep key.\n");
        write("en/keys.md", "# Keys\n\n## Beep and bells\n\nNone.\n");
        write("de/index.md", "# Der Editor\n\n- [Warten auf](wait-for.md)\n- [Piepsen](beep.md)\n");
        write("de/wait-for.md", "# Warten auf\n\nWartet auf einen Text; ÄHNLICHE auch.\n");
    }

    [[nodiscard]] std::filesystem::path bin() const { return folder_ / "bin"; }
    [[nodiscard]] Manual read(const std::string& language = {}) const {
        return {manualFolder(bin()), language};
    }
    /// Writes a page; `name` is below the manual's folder, such as "en/beep.md".
    void write(const std::string& name, const std::string& text) const {
        const auto path = manualFolder(bin()).lexically_normal() / name;
        std::filesystem::create_directories(path.parent_path());
        std::ofstream(path) << text;
    }

  private:
    TemporaryFolder folder_;
};

}  // namespace quendra::test
