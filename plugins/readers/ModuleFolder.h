// A user's own SWORD module: found by the folder of modules, by its own folder in there, or by its
// description, and checked before it is read.
#pragma once

#include "readers/VerseSource.h"

#include <QElapsedTimer>
#include <chrono>
#include <memory>

// Whether the path (of the host) leads to a module or to a folder of modules.
bool isModulePath(const QString& path);

// Error::NotADatabase for a folder with several texts, which it names, and for a module that
// cannot be read.
std::unique_ptr<VerseSource> openModulePath(const QString& path);

// Ends with an error where the verses of another source are too long in coming.
class TimedVerses final : public VerseSource {
public:
    TimedVerses(std::unique_ptr<VerseSource> source, std::chrono::milliseconds limit);

    std::optional<Verse> next() override;
    double fraction() const override { return m_source->fraction(); }
    QStringList remarks() const override { return m_source->remarks(); }
    SourceInfo info() const override { return m_source->info(); }

private:
    std::unique_ptr<VerseSource> m_source;
    std::chrono::milliseconds m_limit;
    QElapsedTimer m_clock;
};
