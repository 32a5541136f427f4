// The editor as its user starts it, with a home folder that holds nothing of anybody's.
#pragma once

#include "desktop/virtual_desktop.h"
#include "support/fixtures.h"

#include <gtest/gtest.h>
#include <memory>

namespace quendra::test {

/// A user with scripts, and editors that show them.
class EditorProcessTest : public testing::Test {
  protected:
    EditorProcessTest();
    ~EditorProcessTest() override;

    /// Starts an editor, with a script when a name is given, and with options.
    [[nodiscard]] std::unique_ptr<ChildProcess> start(const std::string& script = {},
                                                      const Words& options = {});
    /// Starts one and waits until its window is the active one.
    [[nodiscard]] std::unique_ptr<ChildProcess> open(const std::string& script = {});

    [[nodiscard]] std::filesystem::path pathOf(const std::string& script) const {
        return home_ / script;
    }
    [[nodiscard]] std::string titleOf(const std::string& script, bool modified = false) const;
    void pressUntil(const Words& keys, const std::string& title) const {
        press(keys);
        waitForTitle(title);
    }

  private:
    TemporaryFolder home_;
};

}  // namespace quendra::test
