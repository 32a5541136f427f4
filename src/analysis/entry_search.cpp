#include "analysis/entry_search.h"

#include "model/entry_fields.h"
#include "model/menu_commands.h"
#include "scriptfile/entry_codec.h"
#include "text/text_encoding.h"
#include "text/text_folding.h"

#include <algorithm>
#include <variant>

namespace quendra {

namespace {

class Searcher {
  public:
    Searcher(std::string_view text, const DisplayNames& names)
        : text_(foldedText(text)), names_(names) {}

    [[nodiscard]] bool isIn(const ScriptEntry& entry) const {
        if (isInUtf8(formatEntryLine(entry, names_))) return true;
        return std::ranges::any_of(slotsOf(entry),
                                   [&](Slot slot) { return isInSlot(entry, slot); });
    }

  private:
    [[nodiscard]] bool isInSlot(const ScriptEntry& entry, Slot slot) const {
        return std::ranges::any_of(fieldsOf(entry, slot), [&](const EntryField& field) {
            return isText(field.kind) && !isSecret(entry, slot, field) &&
                   isInField(std::get<std::string_view>(fieldValue(entry, slot, field)));
        });
    }

    [[nodiscard]] bool isInField(std::string_view windows1252) const {
        return !windows1252.empty() && isInUtf8(utf8FromWindows1252(windows1252));
    }

    [[nodiscard]] bool isInUtf8(std::string_view utf8) const {
        return foldedText(utf8).find(text_) != std::u16string::npos;
    }

    std::u16string text_;
    const DisplayNames& names_;
};

}  // namespace

std::vector<std::size_t> findEntries(const Script& script, const HiddenTextCipher& cipher,
                                     const DisplayNames& names, std::string_view text) {
    std::vector<std::size_t> found;
    if (text.empty()) return found;
    const Searcher searcher(text, names);
    std::size_t index = 0;
    forEachEntry(script, cipher, [&](const ScriptEntry& entry) {
        if (searcher.isIn(entry)) found.push_back(index);
        ++index;
    });
    return found;
}

}  // namespace quendra
