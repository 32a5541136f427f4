#include "app/font_search.h"

#include <QFontDatabase>
#include <QStringList>

#include <fontconfig/fontconfig.h>
#include <system_error>

namespace quendra {
namespace {

// Without a thread the work is done at once.
template <class Work>
std::thread startThread(Work work) {
    try {
        return std::thread(work);
    } catch (const std::system_error&) {
        work();
        return {};
    }
}

}  // namespace

FontSettings::FontSettings()
    : thread_(startThread([this] {
          static_cast<void>(FcInit());
          read_.count_down();
      })) {}

FontSettings::~FontSettings() {
    if (thread_.joinable()) thread_.join();
}

FontSearch::FontSearch(const FontSettings& settings)
    : thread_(startThread([&settings] {
          settings.wait();
          static_cast<void>(QFontDatabase::families());
      })) {}

FontSearch::~FontSearch() {
    if (thread_.joinable()) thread_.join();
}

}  // namespace quendra
