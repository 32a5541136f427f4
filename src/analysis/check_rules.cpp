#include "analysis/check_rules.h"

namespace quendra {

std::string_view severityName(Severity severity) {
    switch (severity) {
        case Severity::Error: return "error";
        case Severity::Warning: return "warning";
        case Severity::Note: break;
    }
    return "note";
}

}  // namespace quendra
