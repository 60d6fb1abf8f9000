#include "readers/WordNet.h"

#include "basic/Error.h"

#include <QDir>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

constexpr std::array FileKinds{"noun"_L1, "verb"_L1, "adj"_L1, "adv"_L1};
constexpr QByteArrayView NoticeMark("  ", 2); // begins each line of the notice at a file's head
constexpr QByteArrayView MeaningMark(" | ", 3);
constexpr QByteArrayView PersonCategory("18");

void openPart(QFile& file) {
    if (!file.open(QIODevice::ReadOnly))
        throw Error(
            Error::FileNotFound,
            u"The dictionary WordNet is not installed. Install the package wordnet-base. (Looked "
            u"for %1.)"_s.arg(file.fileName()));
}

} // namespace

class WordNet::Files {
public:
    Files(const QDir& folder, const QString& kind)
        : m_index(folder.filePath(u"index."_s + kind))
        , m_data(folder.filePath(u"data."_s + kind)) {
        openPart(m_index);
        openPart(m_data);
        QFile irregular(folder.filePath(kind + u".exc"_s));
        openPart(irregular);
        while (!irregular.atEnd()) {
            const QList<QByteArray> line = irregular.readLine().trimmed().split(' ');
            m_irregular[line.first()].append(line.sliced(1));
        }
    }

    QList<QByteArray> irregularBases(const QByteArray& form) const { return m_irregular[form]; }
    bool holds(const QByteArray& word) const { return m_places.contains(word); }

    void find(const QSet<QByteArray>& words) {
        m_index.seek(0);
        while (!m_index.atEnd()) {
            const QByteArray line = m_index.readLine();
            const QByteArray word = line.first(std::max<qsizetype>(line.indexOf(' '), 0));
            if (words.contains(word))
                m_places.insert(word, placesIn(line));
        }
    }

    QList<WordSense> senses(const QByteArray& word) {
        QList<WordSense> found;
        for (const qint64 place : m_places.value(word))
            found.append(senseAt(place, word));
        return found;
    }

    QString notice() {
        QStringList lines;
        m_data.seek(0);
        for (QByteArray line = m_data.readLine(); line.startsWith(NoticeMark);
             line = m_data.readLine()) {
            static const QRegularExpression number(u"^\\s*\\d+\\s*"_s);
            lines.append(QString::fromUtf8(line).remove(number).trimmed());
        }
        return lines.join(u"\r\n"_s);
    }

private:
    // "word n 2 1 @ 2 0 00001740 00002137": behind the number of senses come the kinds of pointers,
    // two more numbers and the place of each sense.
    static QList<qint64> placesIn(const QByteArray& line) {
        const QList<QByteArray> fields = line.simplified().split(' ');
        const qsizetype count = fields.size() > 2 ? fields[2].toInt() : 0;
        QList<qint64> places;
        for (qsizetype at = std::max<qsizetype>(fields.size() - count, 0); at < fields.size(); ++at)
            places.append(fields[at].toLongLong());
        return places;
    }

    WordSense senseAt(qint64 place, const QByteArray& word) {
        m_data.seek(place);
        const QByteArray line = m_data.readLine();
        const qsizetype meaning = line.indexOf(MeaningMark);
        const QList<QByteArray> fields = line.first(std::max<qsizetype>(meaning, 0)).split(' ');
        if (fields.size() < 6 || fields[0].toLongLong() != place)
            throw Error(
                Error::NotADatabase,
                u"The file %1 is damaged. Install the package wordnet-base again."_s.arg(
                    m_data.fileName()));
        return {
            spellingIn(fields, word), fields[1] == PersonCategory,
            QString::fromUtf8(line.sliced(meaning + MeaningMark.size())).trimmed()};
    }

    // The fourth field counts, in hexadecimal, the words of the sense, each followed by a number.
    static QString spellingIn(const QList<QByteArray>& fields, const QByteArray& word) {
        const qsizetype count = fields[3].toInt(nullptr, 16);
        for (qsizetype at = 4; at < 4 + 2 * count && at < fields.size(); at += 2) {
            const QByteArray spelling = fields[at].first(
                fields[at].contains('(') ? fields[at].indexOf('(') : fields[at].size());
            if (spelling.toLower() == word)
                return QString::fromUtf8(spelling);
        }
        return QString::fromUtf8(word);
    }

    QFile m_index;
    QFile m_data;
    QHash<QByteArray, QList<QByteArray>> m_irregular;
    QHash<QByteArray, QList<qint64>> m_places;
};

WordNet::WordNet(const QString& folder) {
    for (size_t part = 0; part < FileKinds.size(); ++part)
        m_files[part] = std::make_unique<Files>(QDir(folder), QString(FileKinds[part]));
}

WordNet::~WordNet() = default;

QList<QByteArray> WordNet::irregularBases(PartOfSpeech part, const QByteArray& form) const {
    return m_files[size_t(part)]->irregularBases(form);
}

void WordNet::find(const QSet<QByteArray>& words) {
    for (const auto& files : m_files)
        files->find(words);
}

bool WordNet::holds(PartOfSpeech part, const QByteArray& word) const {
    return m_files[size_t(part)]->holds(word);
}

QList<WordSense> WordNet::senses(PartOfSpeech part, const QByteArray& word) {
    return m_files[size_t(part)]->senses(word);
}

QString WordNet::licence() {
    return m_files[size_t(PartOfSpeech::Noun)]->notice();
}
