#include "cli/qds.h"

namespace quendra::cli {

namespace {

struct RequestRunner {
    Environment& environment;

    int operator()(const Announcement& announcement) const {
        (announcement.status == statusWell ? environment.out : environment.err)
            << announcement.text;
        return announcement.status;
    }
    int operator()(const ShowRequest& request) const { return showScripts(request, environment); }
    int operator()(const ConvertRequest& request) const {
        return convertScripts(request, environment);
    }
    int operator()(const BuildRequest& request) const { return buildScript(request, environment); }
    int operator()(const CheckRequest& request) const { return checkScripts(request, environment); }
    int operator()(const GrepRequest& request) const { return searchScripts(request, environment); }
    int operator()(const ReplaceRequest& request) const {
        return replaceInScripts(request, environment);
    }
    int operator()(const RenameLabelRequest& request) const {
        return renameLabelInScripts(request, environment);
    }
    int operator()(const DiffRequest& request) const { return diffOfScripts(request, environment); }
    int operator()(const MergeRequest& request) const {
        return mergeOfScripts(request, environment);
    }
    int operator()(const TextsRequest&) const { return printTexts(environment); }
};

}  // namespace

int runQds(const std::vector<std::string>& arguments, Environment& environment) {
    return std::visit(RequestRunner{environment}, parseArguments(arguments));
}

}  // namespace quendra::cli
