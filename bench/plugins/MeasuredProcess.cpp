#include "MeasuredProcess.h"

#include <QElapsedTimer>
#include <QFile>
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

[[noreturn]] void become(const std::vector<QByteArray>& words) {
    std::vector<char*> arguments;
    for (const QByteArray& word : words)
        arguments.push_back(const_cast<char*>(word.constData()));
    arguments.push_back(nullptr);
    const int nowhere = open("/dev/null", O_WRONLY);
    dup2(nowhere, STDOUT_FILENO);
    execv(arguments[0], arguments.data());
    _exit(127);
}

} // namespace

Usage runMeasured(const QString& program, const QStringList& arguments) {
    std::vector<QByteArray> words{QFile::encodeName(program)};
    for (const QString& argument : arguments)
        words.push_back(QFile::encodeName(argument));
    QElapsedTimer clock;
    clock.start();
    const pid_t child = fork();
    if (child == 0)
        become(words);
    int status = 0;
    rusage usage{};
    wait4(child, &status, 0, &usage);
    return {
        WIFEXITED(status) && WEXITSTATUS(status) == 0, double(clock.nsecsElapsed()) / 1e9,
        double(usage.ru_maxrss) / 1024};
}
