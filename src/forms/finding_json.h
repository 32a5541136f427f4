// What checks found, as JSON for programs.
#pragma once

#include "analysis/script_check.h"

#include <iosfwd>
#include <string>
#include <string_view>

namespace quendra {

/// Prints {"findings": [...]} one finding after the other, so that those of any number of scripts
/// take no memory. The form is complete when it has been closed.
class FindingsForm {
  public:
    /// `out` outlives it.
    explicit FindingsForm(std::ostream& out);

    /// `file` is what the script is called, of any bytes; `message` what findingMessage gave.
    void add(std::string_view file, const Finding& finding, const std::string& message);
    void close();

  private:
    std::ostream& out_;
    bool isEmpty_ = true;
};

}  // namespace quendra
