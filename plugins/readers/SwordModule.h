// One module of a SWORD library, verse by verse. Reads nothing but the folder it is given: no
// configuration of the system or of the user. Nothing else knows the library behind it.
#pragma once

#include <QString>
#include <memory>

class SwordModule {
public:
    // Opens the module `name` in `folder` (the one that holds mods.d); nullptr where the folder has
    // no such module. Error::NotADatabase for a module that is no text of verses, is locked, or
    // whose files are cut off, damaged or not what its description says: the library would make
    // megabytes of garbage of these.
    static std::unique_ptr<SwordModule> open(const QString& folder, const QString& name);
    ~SwordModule();
    Q_DISABLE_COPY_MOVE(SwordModule)

    // An entry of the module's description, such as "SourceType"; empty if it says nothing.
    QString description(const char* entry) const;

    // Stands on the next place of the module's verse scheme, introductions not counted; before the
    // first call on none. False behind the last place.
    bool next();

    // Of the current place. A text that the module lacks is empty.
    QString book() const; // OSIS id
    int chapter() const;
    int verse() const;
    QString entry() const;   // with the mark-up
    double fraction() const; // of the scheme, 0 to 1

private:
    class State;
    explicit SwordModule(std::unique_ptr<State> state);

    std::unique_ptr<State> m_state;
};
