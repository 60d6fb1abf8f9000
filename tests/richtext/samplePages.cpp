#include "richtext/samplePages.h"

using namespace Qt::StringLiterals;

QString psalmPage(const QStringList& verses, int chapter) {
    QString page =
        u"{\\rtf1\\ansi\\deff0\\deftab720{\\fonttbl{\\f0\\fnil Times New Roman;}}"
        "{\\colortbl\\red0\\green0\\blue0;\\red10\\green20\\blue30;\\red255\\green0\\blue\\0;}"
        "\\plain\\f0\\fs24\\cf1"_s;
    QString indent;
    for (qsizetype i = 0; i < verses.size(); ++i) {
        const QString number = u"%1:%2"_s.arg(chapter).arg(i + 1);
        page += u"{\\b Psalms\\b0} "_s + indent + u"{\\b "_s + number + u"\\b0} "_s;
        page += verses[i] + u" \\par "_s;
        indent = u"\\li200\\fi-200"_s;
    }
    return page + u' ' + QString(29, u'}');
}

QStringList longestPsalm() {
    const QStringList words =
        u"blessed are the undefiled in way who walk law of LORD they that keep his testimonies "
        "and seek him with whole heart I have thy precepts"_s.split(u' ');
    constexpr int verseCount = 176;
    constexpr qsizetype verseLength = 66;
    QStringList verses;
    quint32 state = 7;
    while (verses.size() < verseCount) {
        QString verse;
        while (verse.size() < verseLength) {
            state = state * 1664525 + 1013904223;
            verse += words[qsizetype(state >> 16) % words.size()] + u' ';
        }
        verses += verse.trimmed();
    }
    return verses;
}

QString lexiconEntry() {
    return u"{\\rtf1\\ansi\\deff0\\deftab720"
           "{\\fonttbl{\\f0\\fnil Times New Roman;}{\\f2\\fnil\\fprq2 BSTGreek;}"
           "{\\f4\\fnil\\fprq2 BSTGreek;}}\\f0\\fs20"
           "\\plain\\f0\\fs25\\b Strong's Number:\\plain\\par \\tab 26\\par \\par "
           "\\plain\\f0\\fs25\\b Greek:\\par \\plain\\tab Agape  [ag-ah'-pay]  "
           "\\plain\\f4\\fs30 agaph\\par\\par "
           "\\plain\\f0\\fs25\\b Word Origin:\\plain\\par \\tab from 25\\par \\par "
           "\\plain\\f0\\fs25\\b Word Usage:\\plain\\par \\tab love 86\\par \\par "
           "\\plain\\f0\\fs25\\b Definition(s):\\plain\\par "
           "1) brotherly love, \\par 2) love feasts"_s
           + QString(27, u'}');
}
