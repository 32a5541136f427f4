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
        write("en/index.html",
              "<h1>The editor</h1><p>About <strong>scripts</strong>.</p><h2>Commands</h2>"
              "<ul><li><a href=\"beep.html\">Beep</a> makes a noise</li><li>Waiting"
              "<ul><li><a href=\"wait-for.html\">Wait_For</a></li>"
              "<li><a href=\"wait.html\">Wait</a></li></ul></li></ul>"
              "<h2>Host types</h2><ul><li><a href=\"mainframe.html\">Mainframe</a>"
              "<ul><li><a href=\"keys.html\">Keys</a></li></ul></li></ul>");
        write("en/beep.html",
              "<h1>Beep</h1><p>Makes a <em>noise</em>. See "
              "<a href=\"wait-for.html#options\">Wait_For</a>, "
              "<a href=\"https://quendra.example/a?b=c\">the site</a> and "
              "<a href=\"nowhere.html\">nothing</a>.</p>");
        std::string scrolled;
        for (int i = 0; i < 60; ++i)
            scrolled += "<p>A line to scroll over.</p>";
        write("en/wait-for.html",
              "<h1>Wait_For</h1><p>Waits for a text on the screen; timeout in seconds.</p>"
              "<pre><code>Wait_For &quot;READY&quot;\nBeep\n</code></pre>" +
                  scrolled + "<h2>Options</h2><p>Case matters.</p>");
        write("en/wait.html",
              "<h1>Wait</h1><p>Waits for seconds; a timeout is another matter.</p>");
        write("en/mainframe.html", "<h1>Mainframe</h1><p>Has a beep key.</p>");
        write("en/keys.html", "<h1>Keys</h1><h2>Beep and bells</h2><p>None.</p>");
        write("de/index.html",
              "<h1>Der Editor</h1><ul><li><a href=\"wait-for.html\">Warten auf</a></li>"
              "<li><a href=\"beep.html\">Piepsen</a></li></ul>");
        write("de/wait-for.html",
              "<h1>Warten auf</h1><p>Wartet auf einen Text; ÄHNLICHE auch.</p>");
    }

    [[nodiscard]] std::filesystem::path bin() const { return folder_ / "bin"; }
    [[nodiscard]] Manual read(const std::string& language = {}) const {
        return {manualFolder(bin()), language};
    }
    /// Writes a page; `name` is below the manual's folder, such as "en/beep.html".
    void write(const std::string& name, const std::string& text) const {
        const auto path = manualFolder(bin()).lexically_normal() / name;
        std::filesystem::create_directories(path.parent_path());
        std::ofstream(path) << text;
    }

  private:
    TemporaryFolder folder_;
};

}  // namespace quendra::test
