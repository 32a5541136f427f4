// Prints what the tables of the program hold and the manual repeats, for scripts/check-manual: one
// fact a line, its parts between tabs. "manual-facts FOLDER" takes the language that the
// language.ini in FOLDER names.
//
//   page     a keyword or host type that has a page of its own
//   key      host type, name, group/number
//   menu     code, name
//   command  number, caption, shortcuts
//   rule     severity, id, of those that checks know
//   field    a name that qds grep takes

#include "analysis/check_rules.h"
#include "analysis/field_search.h"
#include "hosts/lu_catalogue.h"
#include "model/command_catalogue.h"
#include "model/menu_commands.h"
#include "session/commands.h"
#include "text/language_library.h"

#include <algorithm>
#include <cstdio>
#include <iostream>

namespace quendra {
namespace {

// Without its mnemonic, and without the shortcut that stands behind a tab in some languages.
std::string caption(std::string text) {
    text.erase(std::min(text.find('\t'), text.size()));
    std::erase(text, '&');
    text.erase(0, std::min(text.find_first_not_of(' '), text.size()));
    return text;
}

void printPages() {
    for (const ScriptEventInfo& event : scriptEvents())
        std::cout << "page\t" << event.keyword << '\n';
    for (const HostType type : allHostTypes)
        std::cout << "page\t" << hostTypeInfo(type).name << '\n';
}

void printKeys(const TextSource& texts) {
    const LuCatalogues catalogues = buildLuCatalogues(texts);
    for (const HostType type : allHostTypes) {
        for (const LuFunction& function : catalogues.of(type).rows) {
            std::cout << "key\t" << hostTypeInfo(type).name << '\t' << function.name << '\t'
                      << int{function.key.group} << '/' << int{function.key.number} << '\n';
        }
    }
}

void printMenuCommands(const TextSource& texts) {
    for (const MenuCommandInfo& info : menuCommandTable)
        std::cout << "menu\t" << info.code << '\t' << texts(info.nameId) << '\n';
}

void printCommands(LanguageLibrary& language) {
    for (const auto& info : commands()) {
        std::cout << "command\t" << static_cast<int>(info.id) << '\t'
                  << caption(commandMenuText(info, language)) << '\t' << info.shortcut << '\n';
    }
}

void printRules() {
    for (const RuleInfo& rule : checkRules)
        std::cout << "rule\t" << severityName(rule.severity) << '\t' << rule.id << '\n';
}

void printFields() {
    for (const std::string& name : searchableFieldNames()) std::cout << "field\t" << name << '\n';
}

}  // namespace
}  // namespace quendra

int main(int argc, char** argv) {
    using namespace quendra;
    if (argc != 2) {
        std::fputs("usage: manual-facts FOLDER\n", stderr);
        return 2;
    }
    LanguageLibrary language;
    const auto programs = std::filesystem::path(argv[0]).parent_path();
    if (const auto notice = language.load({programs, argv[1], programs})) {
        std::fprintf(stderr, "%s: %s\n", notice->caption.c_str(), notice->text.c_str());
        return 1;
    }
    printPages();
    printKeys(language.textSource());
    printMenuCommands(language.textSource());
    printCommands(language);
    printRules();
    printFields();
    std::cout.flush();
    return std::cout ? 0 : 1;
}
