#include "cli/command_line.h"

#include "analysis/field_search.h"
#include "platform/product_version.h"
#include "text/text_encoding.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <string>
#include <utility>

namespace quendra::cli {

namespace {

std::string hostTypeNames(std::string_view separator) {
    std::string names;
    for (const HostType type : allHostTypes) {
        if (!names.empty()) names += separator;
        names += hostTypeInfo(type).commandLineName;
    }
    return names;
}

Announcement wrongUsage(const std::string& what) {
    return {"qds: " + what + "\nTry 'qds --help'.\n", statusWrongUsage};
}

std::string listed(const std::vector<std::string>& names) {
    std::string text;
    for (const std::string& name : names)
        text += (text.empty() ? "" : ", ") + name;
    return text;
}

Announcement unknown(const std::string& kind, const std::string& word,
                     const std::vector<std::string>& known) {
    return wrongUsage("unknown " + kind + " " + escapeControlCharacters(word) + "; the " + kind +
                      "s are " + listed(known));
}

// Some options of the parser take "[a,b]" for a list of two. Behind a mark that no argument can
// hold, a file or an expression of that form is a word like any other.
constexpr char wordMark = '\0';

std::string marked(const std::string& argument) {
    const bool looksLikeList = argument.starts_with('[') && argument.ends_with(']');
    return looksLikeList ? wordMark + argument : argument;
}

std::string unmarked(std::string argument) {
    std::erase(argument, wordMark);
    return argument;
}

// The parser and what it fills. The lists of files are read from their options as they were typed,
// since the parser's conversion drops a file called "{}".
struct Parser {
    CLI::App app{"Show, check, change and build terminal automation scripts.", "qds"};
    CLI::App* show = nullptr;
    CLI::App* convert = nullptr;
    CLI::App* build = nullptr;
    CLI::App* check = nullptr;
    CLI::App* grep = nullptr;
    CLI::App* replace = nullptr;
    CLI::App* renameLabel = nullptr;
    CLI::App* diff = nullptr;
    CLI::App* merge = nullptr;
    CLI::App* texts = nullptr;
    ShowRequest showRequest;
    ConvertRequest convertRequest;
    BuildRequest buildRequest;
    CheckRequest checkRequest;
    GrepRequest grepRequest;
    ReplaceRequest replaceRequest;
    RenameLabelRequest renameRequest;
    DiffRequest diffRequest;
    MergeRequest mergeRequest;
    std::string hostName;
    std::string pattern;
    PatternOptions patternOptions;
    std::vector<std::string> fields;
    std::vector<std::string> rules;
    std::vector<std::string> typedFiles;

    Parser();
    void addShow();
    void addConvert();
    void addBuild();
    void addCheck();
    void addGrep();
    void addReplace();
    void addRenameLabel();
    void addDiff();
    void addMerge();
    void addSearchOptions(CLI::App& command);
    CLI::Option* addFiles(CLI::App& command, const std::string& help);
};

Parser::Parser() {
    app.set_help_flag("-h,--help", "Print this help and exit");
    app.set_version_flag("--version", std::string("qds ") + releaseVersion,
                         "Print the version and exit");
    app.require_subcommand(1);
    app.get_formatter()->label("SUBCOMMAND", "COMMAND");
    app.footer(
        "FILE - is standard input, and standard output where a file is written.\n"
        "Exit status: 0 all well; 1 a file was refused, was not whole or would lose something;\n"
        "2 wrong usage. check: 0 nothing found, 1 errors or warnings, 2 trouble. grep: 0 found,\n"
        "1 not found, 2 trouble. diff: 0 the same, 1 different, 2 trouble. merge: 0 merged,\n"
        "1 conflicts, 2 trouble, and nothing was written.");
    addShow();
    addConvert();
    addBuild();
    addCheck();
    addGrep();
    addReplace();
    addRenameLabel();
    addDiff();
    addMerge();
    texts = app.add_subcommand("texts", "Print every text of the user interface by its number")
                ->group("Commands");
    for (CLI::App* command : app.get_subcommands({})) {
        for (CLI::Option* option : command->get_options())
            option->transform(unmarked);
    }
}

CLI::Option* Parser::addFiles(CLI::App& command, const std::string& help) {
    return command.add_option("FILE", typedFiles, help)->required()->type_name("");
}

void Parser::addShow() {
    show = app.add_subcommand("show", "Print the entries of scripts, one line for each")
               ->group("Commands");
    auto* numbers = show->add_flag("--numbers", showRequest.numbers, "Number the lines");
    auto* full = show->add_flag("--full", showRequest.full,
                                "Print every field that the line does not tell, for review")
                     ->excludes(numbers);
    show->add_flag("--json", showRequest.json, "Print the JSON form that build reads")
        ->excludes(numbers)
        ->excludes(full);
    show->add_flag("--reveal", showRequest.reveal, "Print hidden texts too")->excludes(full);
    addFiles(*show, "Script files");
}

void Parser::addConvert() {
    convert = app.add_subcommand("convert", "Write scripts in the current version of the format")
                  ->group("Commands");
    convert->add_option("--host", hostName, "Switch to this host type")
        ->type_name(hostTypeNames("|"));
    convert->add_flag("--allow-loss", convertRequest.allowLoss,
                      "Write what there is of a file that is not whole or does not fit");
    auto* output = convert
                       ->add_option("--output", convertRequest.output,
                                    "Write to this file; an old one is kept as OUT.bak")
                       ->type_name("OUT");
    convert
        ->add_flag("--in-place", convertRequest.inPlace,
                   "Replace the files; each old one is kept as FILE.bak")
        ->excludes(output);
    addFiles(*convert, "Script files; only one with --output");
}

void Parser::addBuild() {
    build = app.add_subcommand("build", "Make a script from its JSON form")->group("Commands");
    build->add_option("SOURCE.json", buildRequest.source, "The JSON form")
        ->required()
        ->type_name("");
    build->add_flag("--allow-loss", buildRequest.allowLoss,
                    "Build what there is of a script that was not whole or does not fit");
    build->add_option("--output", buildRequest.output, "Write to this file; an old one is kept")
        ->required()
        ->type_name("OUT.qds");
}

void Parser::addCheck() {
    check = app.add_subcommand("check", "Tell what is wrong with scripts, or looks wrong")
                ->group("Commands");
    check->add_flag("--json", checkRequest.json, "Print the findings as JSON");
    check->add_flag("--notes", checkRequest.notes, "Tell what is worth knowing too");
    check->add_option("--disable", rules, "Be silent about this rule; may be given again")
        ->type_name("RULE")
        ->allow_extra_args(false);
    addFiles(*check, "Script files, or folders for all scripts below them");
}

void Parser::addSearchOptions(CLI::App& command) {
    command.add_flag("-i", patternOptions.ignoreCase, "Take upper and lower case for the same");
    command.add_flag("-E", patternOptions.isExpression, "Search for a regular expression");
    command
        .add_option("--field", fields,
                    "Only in this field, \"text\" or \"then.text\"; may be given again")
        ->type_name("NAME")
        ->allow_extra_args(false);
}

void Parser::addGrep() {
    grep = app.add_subcommand("grep", "Tell which steps and fields of scripts hold a text")
               ->group("Commands");
    addSearchOptions(*grep);
    grep->add_flag("-l", grepRequest.filesOnly, "Print only the names of files that hold it");
    grep->add_option("PATTERN", pattern, "What to search for")->required()->type_name("");
    addFiles(*grep, "Script files, or folders for all scripts below them");
}

void Parser::addReplace() {
    replace = app.add_subcommand("replace", "Replace a text in scripts")->group("Commands");
    addSearchOptions(*replace);
    replace->add_flag("--dry-run", replaceRequest.isDryRun, "Only print what would change");
    replace->add_option("OLD", pattern, "What to replace")->required()->type_name("");
    replace->add_option("NEW", replaceRequest.replacement, "What to put in its place")
        ->required()
        ->type_name("");
    addFiles(*replace, "Script files, or folders; each old file is kept as FILE.bak");
}

void Parser::addRenameLabel() {
    renameLabel = app.add_subcommand("rename-label", "Rename a label with all jumps to it")
                      ->group("Commands");
    renameLabel->add_flag("--dry-run", renameRequest.isDryRun, "Only print what would change");
    renameLabel->add_option("OLD", renameRequest.before, "The label")->required()->type_name("");
    renameLabel->add_option("NEW", renameRequest.after, "Its new name")->required()->type_name("");
    addFiles(*renameLabel, "Script files, or folders; each old file is kept as FILE.bak");
}

void Parser::addDiff() {
    diff = app.add_subcommand("diff", "Tell the difference of two scripts")->group("Commands");
    diff->add_flag("--json", diffRequest.json, "Print it as JSON");
    diff->add_option("A", diffRequest.left, "A script file")->required()->type_name("");
    diff->add_option("B", diffRequest.right, "Another one")->required()->type_name("");
}

void Parser::addMerge() {
    merge =
        app.add_subcommand("merge", "Merge the changes of two sides into OURS")->group("Commands");
    merge->add_option("--name-ours", mergeRequest.oursName, "What conflicts call our side")
        ->type_name("NAME");
    merge->add_option("--name-theirs", mergeRequest.theirsName, "What conflicts call their side")
        ->type_name("NAME");
    merge->add_option("BASE", mergeRequest.base, "What both sides changed")
        ->required()
        ->type_name("");
    merge->add_option("OURS", mergeRequest.ours, "Our state of it")->required()->type_name("");
    merge->add_option("THEIRS", mergeRequest.theirs, "Theirs")->required()->type_name("");
    merge->add_option("--output", mergeRequest.output, "Write to this file and leave OURS")
        ->type_name("OUT");
}

Request convertRequestOf(const Parser& parser) {
    ConvertRequest request = parser.convertRequest;
    request.files = parser.convert->get_option("FILE")->results();
    if (parser.convert->count("--host") > 0) {
        request.hostType = hostTypeOfCommandLineName(parser.hostName);
        if (!request.hostType) {
            return wrongUsage("--host must be one of " + hostTypeNames(", "));
        }
    }
    if (request.inPlace) {
        if (std::ranges::find(request.files, standardStream) != request.files.end()) {
            return wrongUsage("standard input cannot be converted in place");
        }
        return request;
    }
    if (request.output.empty()) return wrongUsage("convert needs --output OUT or --in-place");
    if (request.files.size() > 1) return wrongUsage("--output takes a single FILE");
    return request;
}

std::vector<std::string> filesOf(const CLI::App& command) {
    return command.get_option("FILE")->results();
}

std::string ruleIds() {
    std::string ids;
    for (const RuleInfo& rule : checkRules) {
        if (!ids.empty()) ids += ", ";
        ids += rule.id;
    }
    return ids;
}

Request checkRequestOf(const Parser& parser) {
    CheckRequest request = parser.checkRequest;
    request.files = filesOf(*parser.check);
    for (const std::string& id : parser.rules) {
        const auto rule = ruleOfId(id);
        if (!rule) return wrongUsage("there is no rule " + id + "; the rules are " + ruleIds());
        request.disabled.add(*rule);
    }
    return request;
}

std::string fieldNames() {
    std::string names;
    for (const std::string& name : searchableFieldNames()) {
        if (!names.empty()) names += ", ";
        names += name;
    }
    return names;
}

// Either the terms or what is wrong with them.
std::variant<SearchTerms, Announcement> searchTermsOf(const Parser& parser) {
    for (const std::string& name : parser.fields) {
        if (isSearchableFieldName(name)) continue;
        return wrongUsage("there is no field " + name + " to search; the fields are " +
                          fieldNames() + ", each also with then. or else. before it");
    }
    if (parser.pattern.empty()) return wrongUsage("there is nothing to search for");
    auto pattern = TextPattern::of(parser.pattern, parser.patternOptions);
    if (const auto* fault = std::get_if<PatternFault>(&pattern)) {
        return wrongUsage("the expression is not valid: " + fault->what + " (behind " +
                          std::to_string(fault->position) + " characters)");
    }
    return SearchTerms{
        std::make_shared<const TextPattern>(std::get<TextPattern>(std::move(pattern))),
        parser.fields};
}

// Fills in what grep and replace have in common.
template <class SearchRequest>
Request searchRequestOf(const Parser& parser, const CLI::App& command, SearchRequest request) {
    auto terms = searchTermsOf(parser);
    if (auto* refusal = std::get_if<Announcement>(&terms)) return std::move(*refusal);
    request.search = std::get<SearchTerms>(std::move(terms));
    request.files = filesOf(command);
    return request;
}

// What is changed is the file itself.
Request unlessStandardInput(Request request, const std::vector<std::string>& files) {
    if (std::ranges::find(files, standardStream) == files.end()) return request;
    return wrongUsage("standard input cannot be changed in place");
}

Request renameRequestOf(const Parser& parser) {
    RenameLabelRequest request = parser.renameRequest;
    request.files = filesOf(*parser.renameLabel);
    if (request.before.empty()) return wrongUsage("a label has a name of at least one character");
    return request;
}

Request mergeRequestOf(const Parser& parser) {
    const MergeRequest& request = parser.mergeRequest;
    const std::string& target = request.output.empty() ? request.ours : request.output;
    if (target == standardStream && request.output.empty()) {
        return wrongUsage("standard input cannot be replaced; use --output");
    }
    return request;
}

Request requestOf(const Parser& parser) {
    if (parser.show->parsed()) {
        ShowRequest request = parser.showRequest;
        request.files = parser.show->get_option("FILE")->results();
        return request;
    }
    if (parser.convert->parsed()) return convertRequestOf(parser);
    if (parser.build->parsed()) return parser.buildRequest;
    if (parser.check->parsed()) return checkRequestOf(parser);
    if (parser.grep->parsed()) return searchRequestOf(parser, *parser.grep, parser.grepRequest);
    if (parser.replace->parsed()) {
        return unlessStandardInput(searchRequestOf(parser, *parser.replace, parser.replaceRequest),
                                   filesOf(*parser.replace));
    }
    if (parser.renameLabel->parsed()) {
        return unlessStandardInput(renameRequestOf(parser), filesOf(*parser.renameLabel));
    }
    if (parser.diff->parsed()) return parser.diffRequest;
    if (parser.merge->parsed()) return mergeRequestOf(parser);
    return TextsRequest{};
}

std::vector<const CLI::App*> commandsOf(const CLI::App& app) {
    return app.get_subcommands([](const CLI::App*) { return true; });
}

// Null when there is none of that name.
const CLI::App* commandOf(const CLI::App& app, const std::string& name) {
    const auto commands = commandsOf(app);
    const auto found = std::ranges::find(commands, name, &CLI::App::get_name);
    return found == commands.end() ? nullptr : *found;
}

std::vector<std::string> commandNames(const CLI::App& app) {
    std::vector<std::string> names;
    for (const CLI::App* command : commandsOf(app))
        names.push_back(command->get_name());
    return names;
}

std::vector<std::string> optionNames(const CLI::App& command) {
    std::vector<std::string> names;
    for (const CLI::Option* option : command.get_options()) {
        for (const std::string& name : option->get_lnames())
            names.push_back("--" + name);
        if (!option->get_lnames().empty()) continue;
        for (const std::string& name : option->get_snames())
            names.push_back("-" + name);
    }
    return names;
}

// "--name", "--name=value" or the first letter of "-xyz"; a dash alone, or a number, is no option.
std::optional<std::string> optionName(const std::string& argument) {
    if (argument.starts_with("--")) return argument.substr(0, argument.find('='));
    const bool isOption =
        argument.size() > 1 && argument[0] == '-' && (argument[1] < '0' || argument[1] > '9');
    return isOption ? std::optional(argument.substr(0, 2)) : std::nullopt;
}

// The first word that is neither a command nor an option of one. The parser would name it without
// those that there are, or something else in its place.
std::optional<Announcement> unknownWord(const CLI::App& app,
                                        const std::vector<std::string>& arguments) {
    if (arguments.empty())
        return wrongUsage("a command is missing; the commands are " + listed(commandNames(app)));
    const CLI::App* command = nullptr;
    for (const std::string& argument : arguments) {
        if (argument == "--") break;
        const CLI::App& scope = command ? *command : app;
        if (const auto option = optionName(argument)) {
            if (scope.get_option_no_throw(*option)) continue;
            const std::string kind = command ? command->get_name() + " option" : "option";
            return unknown(kind, *option, optionNames(scope));
        }
        if (command) continue;
        command = commandOf(app, argument);
        if (!command) return unknown("command", argument, commandNames(app));
    }
    return std::nullopt;
}

}  // namespace

Request parseArguments(const std::vector<std::string>& arguments) {
    Parser parser;
    if (auto wrong = unknownWord(parser.app, arguments)) return *wrong;
    try {
        // The parser takes its arguments from the back.
        std::vector<std::string> reversed(arguments.rbegin(), arguments.rend());
        std::ranges::transform(reversed, reversed.begin(), marked);
        parser.app.parse(std::move(reversed));
    } catch (const CLI::CallForHelp&) {
        return Announcement{parser.app.help()};
    } catch (const CLI::CallForVersion& version) {
        return Announcement{std::string(version.what()) + "\n"};
    } catch (const CLI::ParseError& error) {
        return wrongUsage(unmarked(error.what()));
    }
    return requestOf(parser);
}

}  // namespace quendra::cli
