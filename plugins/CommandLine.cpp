#include "CommandLine.h"

#include "Configuration.h"
#include "Importing.h"
#include "Workshop.h"
#include "basic/Error.h"
#include "check/Check.h"
#include "desktop/HostPath.h"
#include "jet/JetConversion.h"

#include <CLI/CLI.hpp>
#include <QDir>

using namespace Qt::StringLiterals;

namespace {

constexpr const char* Footer =
    "The user's notes live in the data files: one that is there already stays as it is, or hands\n"
    "its notes on to the one that takes its place.\n"
    "Exit codes: 0 all is well, 1 something could not be made or is wrong, 2 wrong use.";

constexpr const char* ForceHelp =
    "Make translations anew that are there already. Their notes are carried over, red-letter marks "
    "set by hand are not. Close the program first";

const QString AllWorks = u"all"_s;

constexpr const char* ImportHelp = "Make a translation of a text of your own: a SWORD module, "
                                   "OSIS, USFM (a file or a folder), USX, "
                                   "USFX, Zefania XML, delimited text, or a Jet database";

// The options as typed.
struct Options {
    std::vector<std::string> works;
    std::string file;
    std::string work;
    std::string folder;
    std::string moduleFolder;
    bool force = false;
};

bool hasSource(const Work& work) {
    return work.maker != nullptr;
}

bool isTranslation(const Work& work) {
    return work.tables == "tblMain"_L1;
}

QStringList namesOf(bool (*isMeant)(const Work&)) {
    QStringList names;
    for (const Work& work : works()) {
        if (isMeant(work))
            names.append(work.name);
    }
    return names;
}

// What is wrong with the name of a work; empty for nothing.
std::string checkWork(const std::string& name) {
    const QString typed = QString::fromStdString(name);
    if (findWork(typed) || typed.compare(AllWorks, Qt::CaseInsensitive) == 0)
        return {};
    return u"\"%1\" is not a work that this program makes. It makes: %2."_s
        .arg(typed, (namesOf(hasSource) << AllWorks).join(u", "_s))
        .toStdString();
}

std::string checkTranslation(const std::string& name) {
    const QString typed = QString::fromStdString(name);
    const Work* work = findWork(typed);
    if (work && isTranslation(*work))
        return {};
    return u"\"%1\" is not a translation of the catalogue. These are: %2."_s
        .arg(typed, namesOf(isTranslation).join(u", "_s))
        .toStdString();
}

// Each work once, in the order of the command line; all those with a source stand for "all".
QList<const Work*> chosenWorks(const std::vector<std::string>& names) {
    QList<const Work*> chosen;
    const auto choose = [&chosen](const Work& work) {
        if (!chosen.contains(&work))
            chosen.append(&work);
    };
    for (const std::string& name : names) {
        if (const Work* work = findWork(QString::fromStdString(name))) {
            choose(*work);
            continue;
        }
        for (const Work& work : works()) {
            if (hasSource(work))
                choose(work);
        }
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

CLI::App* addImport(CLI::App& app, Options& options) {
    CLI::App* import = app.add_subcommand("import", ImportHelp);
    import->add_option("FILE-OR-FOLDER", options.file, "The text")->required()->type_name("");
    import->add_option("--as", options.work, "The translation of the catalogue that it stands for")
        ->required()
        ->check(CLI::Validator(checkTranslation, std::string(), std::string()))
        ->type_name("WORK");
    addFolderOption(*import, options);
    return import;
}

CLI::App* addFileCommand(CLI::App& app, const char* name, const char* help, Options& options) {
    CLI::App* command = app.add_subcommand(name, help);
    command->add_option("FILE", options.file, "The data file")->required()->type_name("");
    return command;
}

bool importFile(const Options& options, Console& console) {
    const Work* work = findWork(QString::fromStdString(options.work));
    return importText(
        {QString::fromStdString(options.file), work->file, workshopOptions(options).folder},
        console);
}

// Says nothing but the path of the file to open.
bool convertFile(const Options& options, Console& console) {
    try {
        const QString file = hostPath(QString::fromStdString(options.file));
        writeLine(console.out, convertJetFile(file));
        return true;
    } catch (const Error& error) {
        writeLine(console.errors, error.text());
        return false;
    }
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
    CLI::App app("Makes the data files of Lumenvia, and looks after them.", "lumenvia-plugins");
    app.footer(Footer);
    app.set_version_flag("--version", versionText());
    app.require_subcommand(1);
    CLI::App* make = addMake(app, options);
    CLI::App* import = addImport(app, options);
    CLI::App* list = app.add_subcommand("list", "List the works: what is there, and its source");
    addFolderOption(*list, options);
    CLI::App* check = addFileCommand(
        app, "check", "Say what a data file holds and what is wrong with it", options);
    CLI::App* convert = addFileCommand(
        app, "convert", "Convert a Jet database in its place; the original is kept beside it",
        options);
    std::vector<std::string> reversed(arguments.size());
    std::transform(
        arguments.rbegin(), arguments.rend(), reversed.begin(),
        [](const QString& argument) { return argument.toStdString(); });
    try {
        app.parse(reversed);
    } catch (const CLI::ParseError& error) {
        return app.exit(error, console.out, console.errors) == 0 ? AllMade : WrongUse;
    }
    const auto outcome = [](bool isWell) { return isWell ? AllMade : SomethingNotMade; };
    if (import->parsed())
        return outcome(importFile(options, console));
    if (check->parsed())
        return outcome(checkDataFile(QString::fromStdString(options.file), console));
    if (convert->parsed())
        return outcome(convertFile(options, console));
    Workshop workshop(workshopOptions(options), console);
    if (make->parsed())
        return outcome(workshop.make(chosenWorks(options.works)));
    workshop.list();
    return AllMade;
}
