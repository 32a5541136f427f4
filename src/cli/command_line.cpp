#include "cli/command_line.h"

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

// The parser and what it fills. The lists of files are read from their options as they were typed,
// since the parser's conversion drops a file called "{}".
struct Parser {
    CLI::App app{"Show, convert and build terminal automation scripts.", "qds"};
    CLI::App* show = nullptr;
    CLI::App* convert = nullptr;
    CLI::App* build = nullptr;
    CLI::App* texts = nullptr;
    ShowRequest showRequest;
    ConvertRequest convertRequest;
    BuildRequest buildRequest;
    std::string hostName;
    std::vector<std::string> typedFiles;

    Parser();
    void addShow();
    void addConvert();
    void addBuild();
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
        "2 wrong usage.");
    addShow();
    addConvert();
    addBuild();
    texts = app.add_subcommand("texts", "Print every text of the user interface by its number")
                ->group("Commands");
}

CLI::Option* Parser::addFiles(CLI::App& command, const std::string& help) {
    return command.add_option("FILE", typedFiles, help)->required()->type_name("");
}

void Parser::addShow() {
    show = app.add_subcommand("show", "Print the entries of scripts, one line for each")
               ->group("Commands");
    auto* numbers = show->add_flag("--numbers", showRequest.numbers, "Number the lines");
    show->add_flag("--json", showRequest.json, "Print the JSON form that build reads")
        ->excludes(numbers);
    show->add_flag("--reveal", showRequest.reveal, "Print hidden texts too");
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

// The parser would take a file called "[a,b]" for a list of two.
std::string asFileName(const std::string& argument) {
    const bool looksLikeList = argument.starts_with('[') && argument.ends_with(']');
    return looksLikeList ? "./" + argument : argument;
}

Request requestOf(const Parser& parser) {
    if (parser.show->parsed()) {
        ShowRequest request = parser.showRequest;
        request.files = parser.show->get_option("FILE")->results();
        return request;
    }
    if (parser.convert->parsed()) return convertRequestOf(parser);
    if (parser.build->parsed()) return parser.buildRequest;
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
        std::ranges::transform(reversed, reversed.begin(), asFileName);
        parser.app.parse(std::move(reversed));
    } catch (const CLI::CallForHelp&) {
        return Announcement{parser.app.help()};
    } catch (const CLI::CallForVersion& version) {
        return Announcement{std::string(version.what()) + "\n"};
    } catch (const CLI::ParseError& error) {
        return wrongUsage(error.what());
    }
    return requestOf(parser);
}

}  // namespace quendra::cli
