#include "analysis/entry_search.h"

#include "scriptfile/entry_codec.h"
#include "text/text_encoding.h"
#include "text/text_folding.h"

#include <algorithm>

namespace quendra {

namespace {

class Searcher {
  public:
    Searcher(std::string_view text, const DisplayNames& names)
        : text_(foldedText(text)), names_(names) {}

    [[nodiscard]] bool isIn(const ScriptEntry& entry) const {
        return isInUtf8(formatEntryLine(entry, names_)) || isInField(compareTextOf(entry)) ||
               isInSlot(slotFields(entry, Slot::Entry)) ||
               isInSlot(slotFields(entry, Slot::Then)) || isInSlot(slotFields(entry, Slot::Else));
    }

  private:
    [[nodiscard]] bool isInSlot(const ConstSlotFields& fields) const {
        if (!isHiddenText(fields) && isInField(textOf(fields))) return true;
        if (fields.code == CommandCode::Input && isInField(promptOf(fields))) return true;
        return fields.code == CommandCode::MenuCommand && isFileTransfer(fields.commandId) &&
               isInTransfer(fields.transferSettings);
    }

    [[nodiscard]] bool isInTransfer(const FileTransferSettings& settings) const {
        return std::ranges::any_of(transferFields(), [&](const TransferField& field) {
            return field.kind == TransferFieldKind::Text &&
                   field.offset != transfer::hostFilePassword.offset &&
                   isInField(transferText(settings, field));
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
