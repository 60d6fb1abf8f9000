#include "CommandLine.h"

#include "Configuration.h"
#include "Workshop.h"
#include "desktop/HostPath.h"

#include <CLI/CLI.hpp>
#include <QDir>

using namespace Qt::StringLiterals;

namespace {

constexpr const char* Footer =
    "Files that are there already stay as they are: the user's notes live in them.\n"
    "Exit codes: 0 all is made, 1 something could not be made, 2 wrong use.";

constexpr const char* ForceHelp =
    "Make translations anew that are there already. Their notes are carried over, red-letter marks "
    "set by hand are not. Close the program first";

const QString AllWorks = u"all"_s;

// The options as typed.
struct Options {
    std::vector<std::string> works;
    std::string folder;
    std::string moduleFolder;
    bool force = false;
};

QStringList workNames() {
    QStringList names;
    for (const Work& work : works())
        names.append(work.name);
    return names << AllWorks;
}

// What is wrong with the name of a work; empty for nothing.
std::string checkWork(const std::string& name) {
    const QString typed = QString::fromStdString(name);
    if (findWork(typed) || typed.compare(AllWorks, Qt::CaseInsensitive) == 0)
        return {};
    return u"\"%1\" is not a work that this program makes. It makes: %2."_s
        .arg(typed, workNames().join(u", "_s))
        .toStdString();
}

// Each work once, in the order of the command line.
QList<const Work*> chosenWorks(const std::vector<std::string>& names) {
    QList<const Work*> chosen;
    const auto choose = [&chosen](const Work* work) {
        if (!chosen.contains(work))
            chosen.append(work);
    };
    for (const std::string& name : names) {
        if (const Work* work = findWork(QString::fromStdString(name)))
            choose(work);
        else
            std::ranges::for_each(works(), [&choose](const Work& each) { choose(&each); });
    }
    return chosen;
}

// A user's own copy of a module comes before the system's.
QStringList defaultModuleFolders() {
    return {QDir::homePath() + u"/.sword"_s, u"/usr/share/sword"_s};
}

WorkshopOptions workshopOptions(const Options& options) {
    const QString folder = QString::fromStdString(options.folder);
    const QString moduleFolder = QString::fromStdString(options.moduleFolder);
    return {
        folder.isEmpty() ? programFolder() : folder,
        moduleFolder.isEmpty() ? defaultModuleFolders() : QStringList{moduleFolder},
        options.force,
    };
}

void addFolderOption(CLI::App& command, Options& options) {
    command
        .add_option(
            "--to", options.folder, "The folder of the data files, instead of the program's")
        ->type_name("FOLDER");
}

CLI::App* addMake(CLI::App& app, Options& options) {
    CLI::App* make = app.add_subcommand("make", "Make data files");
    make->add_option("WORK", options.works, "The works to make, or all")
        ->required()
        ->check(CLI::Validator(checkWork, std::string(), std::string()))
        ->type_name("");
    addFolderOption(*make, options);
    make->add_option(
            "--from", options.moduleFolder, "The folder of SWORD modules (with mods.d in it)")
        ->type_name("FOLDER");
    make->add_flag("--force", options.force, ForceHelp);
    return make;
}

std::string versionText() {
    return u"lumenvia-plugins %1.%2.%3"_s.arg(configuration::VersionMajor)
        .arg(configuration::VersionMinor)
        .arg(configuration::VersionRevision)
        .toStdString();
}

} // namespace

ExitCode runCommandLine(const QStringList& arguments, Console& console) {
    Options options;
    CLI::App app(
        "Makes the data files of Lumenvia from openly licensed texts.", "lumenvia-plugins");
    app.footer(Footer);
    app.set_version_flag("--version", versionText());
    app.require_subcommand(1);
    CLI::App* make = addMake(app, options);
    CLI::App* list = app.add_subcommand("list", "List the works: what is there, and its source");
    addFolderOption(*list, options);
    std::vector<std::string> reversed(arguments.size());
    std::transform(
        arguments.rbegin(), arguments.rend(), reversed.begin(),
        [](const QString& argument) { return argument.toStdString(); });
    try {
        app.parse(reversed);
    } catch (const CLI::ParseError& error) {
        return app.exit(error, console.out, console.errors) == 0 ? AllMade : WrongUse;
    }
    Workshop workshop(workshopOptions(options), console);
    if (make->parsed())
        return workshop.make(chosenWorks(options.works)) ? AllMade : SomethingNotMade;
    workshop.list();
    return AllMade;
}
