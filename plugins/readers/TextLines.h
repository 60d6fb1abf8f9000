// The lines of a text file, one after the other. Its encoding is what its byte-order mark says, or
// else what its bytes fit: UTF-8, UTF-16, and Latin-1 for all others, with the printable characters
// that Windows puts in between.
#pragma once

#include <QFile>
#include <QString>
#include <QStringDecoder>
#include <optional>

class TextLines {
public:
    // Reads the file once to tell the encoding. Error::FileNotFound if it cannot be opened.
    explicit TextLines(const QString& path);

    // The next line without its end. Error::NotADatabase for one that is too long to be one.
    // Interrupted (Interruption.h).
    std::optional<QString> next();

    // Looks at it only.
    std::optional<QString> peek();

    int number() const { return m_number; } // of the line that came last, from 1
    double fraction() const;
    QString fileName() const { return m_name; }

    // What the user should know once the last line has come.
    QStringList remarks() const;

private:
    void findEncoding();
    bool fill();
    QString decoded(const QByteArray& bytes);
    std::optional<qsizetype> findEnd();
    QString takeLine(qsizetype length);

    QFile m_file;
    QString m_name;
    bool m_isLatin = false;
    QStringDecoder m_decoder;
    QString m_buffer;         // decoded and not yet given
    qsizetype m_at = 0;       // in it, the next line
    qsizetype m_searched = 0; // up to here it has no line end
    std::optional<QString> m_peeked;
    int m_number = 0;
    bool m_isCutOff = false;
};
