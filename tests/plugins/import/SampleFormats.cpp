#include "plugins/import/SampleFormats.h"

#include "text/BookTable.h"

#include <QDir>
#include <QFile>
#include <array>
#include <cstring>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

using Marks = QString (*)(const SamplePart& part);

QString usfmId(const QString& book) {
    const Book* known = findBook(book);
    return known ? QString(known->usfm) : book.toUpper();
}

QString numberOf(const QString& book) {
    const Book* known = findBook(book);
    return known ? QString::number(known->number) : u"70"_s;
}

QString joined(const SampleVerse& verse, Marks marks) {
    QString text;
    for (const SamplePart& part : verse.parts)
        text += marks(part);
    return text;
}

QString osisPart(const SamplePart& part) {
    const QString text = part.text.toHtmlEscaped();
    switch (part.kind) {
    case PartKind::Red:
        return u"<q who=\"Jesus\" marker=\"\">%1</q>"_s.arg(text);
    case PartKind::Added:
        return u"<transChange type=\"added\">%1</transChange>"_s.arg(text);
    case PartKind::Divine:
        return u"<divineName>%1</divineName>"_s.arg(text);
    case PartKind::Note:
        return u"<note><reference>1.1</reference><catchWord>c</catchWord> %1</note>"_s.arg(text);
    default:
        return text;
    }
}

QString usfmPart(const SamplePart& part) {
    switch (part.kind) {
    case PartKind::Red:
        return u"\\wj %1\\wj*"_s.arg(part.text);
    case PartKind::Added:
        return u"\\add %1\\add*"_s.arg(part.text);
    case PartKind::Divine:
        return u"\\nd \\+w %1|strong=\"H3068\"\\+w*\\nd*"_s.arg(part.text);
    case PartKind::Note:
        return u"\\f + \\fr 1.1 \\ft %1\\f*"_s.arg(part.text);
    default:
        return part.text;
    }
}

QString usxPart(const SamplePart& part) {
    const QString text = part.text.toHtmlEscaped();
    switch (part.kind) {
    case PartKind::Red:
        return u"<char style=\"wj\">%1</char>"_s.arg(text);
    case PartKind::Added:
        return u"<char style=\"add\">%1</char>"_s.arg(text);
    case PartKind::Divine:
        return u"<char style=\"nd\">%1</char>"_s.arg(text);
    case PartKind::Note:
        return u"<note style=\"f\"><char style=\"ft\">%1</char></note>"_s.arg(text);
    default:
        return text;
    }
}

QString usfxPart(const SamplePart& part) {
    const QString text = part.text.toHtmlEscaped();
    switch (part.kind) {
    case PartKind::Red:
        return u"<wj>%1</wj>"_s.arg(text);
    case PartKind::Added:
        return u"<add>%1</add>"_s.arg(text);
    case PartKind::Divine:
        return u"<nd><w s=\"H3068\">%1</w></nd>"_s.arg(text);
    case PartKind::Note:
        return u"<f caller=\"+\"><fr>1.1</fr><ft>%1</ft></f>"_s.arg(text);
    default:
        return text;
    }
}

QString zefaniaPart(const SamplePart& part) {
    const QString text = part.text.toHtmlEscaped();
    switch (part.kind) {
    case PartKind::Red:
        return u"<STYLE css=\"color:#FF0000\">%1</STYLE>"_s.arg(text);
    case PartKind::Added:
        return u"<STYLE fs=\"italic\">%1</STYLE>"_s.arg(text);
    case PartKind::Divine:
        return u"<gr str=\"3068\">%1</gr>"_s.arg(text);
    case PartKind::Note:
        return u"<NOTE>%1</NOTE>"_s.arg(text);
    default:
        return text;
    }
}

// Books and chapters, begun and ended as the verses come to them.
struct Frame {
    QString (*startBook)(const QString& book);
    QString (*startChapter)(const SampleVerse& first);
    QString (*verse)(const SampleVerse& verse);
    QString endChapter;
    QString endBook;
};

QString framed(const QList<SampleVerse>& verses, const Frame& frame) {
    QString text;
    const SampleVerse* last = nullptr;
    for (const SampleVerse& verse : verses) {
        const bool isOtherBook = !last || last->book != verse.book;
        const bool isOtherChapter = isOtherBook || last->chapter != verse.chapter;
        if (last && isOtherChapter)
            text += frame.endChapter;
        if (last && isOtherBook)
            text += frame.endBook;
        if (isOtherBook)
            text += frame.startBook(verse.book);
        if (isOtherChapter)
            text += frame.startChapter(verse);
        text += frame.verse(verse);
        last = &verse;
    }
    return last ? text + frame.endChapter + frame.endBook : text;
}

QString osisDocument(const QString& body) {
    return u"<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<osis><osisText>\n<header><work>"
           u"<title>Sample</title><rights>Free</rights></work><work>"
           u"<title>Other</title></work></header>\n%1</osisText></osis>\n"_s.arg(body);
}

QString osisBook(const QString& book) {
    return u"<div type=\"book\" osisID=\"%1\"><title>The book</title>\n"_s.arg(book);
}

QString osisTitle(const SampleVerse& verse) {
    return verse.title.isEmpty()
               ? QString()
               : u"<title type=\"psalm\" canonical=\"true\">%1</title>"_s.arg(verse.title);
}

QString osisId(const SampleVerse& verse) {
    return u"%1.%2.%3"_s.arg(verse.book, verse.chapter, verse.verse);
}

QByteArray osisContainers(const QList<SampleVerse>& verses) {
    const auto chapter = [](const SampleVerse& first) {
        return u"<chapter osisID=\"%1.%2\"><title>A heading</title>%3\n"_s.arg(
            first.book, first.chapter, osisTitle(first));
    };
    const auto verse = [](const SampleVerse& each) {
        return u"<verse osisID=\"%1\">%2</verse>\n"_s.arg(osisId(each), joined(each, osisPart));
    };
    return osisDocument(
               framed(verses, {osisBook, chapter, verse, u"</chapter>\n"_s, u"</div>\n"_s}))
        .toUtf8();
}

QByteArray osisMilestones(const QList<SampleVerse>& verses) {
    const auto chapter = [](const SampleVerse& first) {
        return u"<chapter sID=\"c\" osisID=\"%1.%2\"/>%3<p>\n"_s.arg(
            first.book, first.chapter, osisTitle(first));
    };
    const auto verse = [](const SampleVerse& each) {
        return u"<verse osisID=\"%1\" sID=\"%1\"/>%2<verse eID=\"%1\"/>\n"_s.arg(
            osisId(each), joined(each, osisPart));
    };
    const Frame frame{osisBook, chapter, verse, u"</p><chapter eID=\"c\"/>\n"_s, u"</div>\n"_s};
    return osisDocument(framed(verses, frame)).toUtf8();
}

QByteArray usfm(const QList<SampleVerse>& verses) {
    const auto book = [](const QString& name) {
        return u"\\id %1 A sample\n\\h Header\n\\toc1 Contents\n\\mt1 Title\n"_s.arg(usfmId(name));
    };
    const auto chapter = [](const SampleVerse& first) {
        const QString title = first.title.isEmpty() ? QString() : u"\\d %1\n"_s.arg(first.title);
        return u"\\c %1\n\\s1 A heading\n\\r (Other 1.1)\n%2\\p\n"_s.arg(first.chapter, title);
    };
    const auto verse = [](const SampleVerse& each) {
        return u"\\v %1 %2\n"_s.arg(each.verse, joined(each, usfmPart));
    };
    return framed(verses, {book, chapter, verse, {}, {}}).toUtf8();
}

QByteArray usx(const QList<SampleVerse>& verses) {
    const auto book = [](const QString& name) {
        return u"<book code=\"%1\" style=\"id\">A sample</book><para style=\"mt1\">T</para>\n"_s
            .arg(usfmId(name));
    };
    const auto chapter = [](const SampleVerse& first) {
        const QString title =
            first.title.isEmpty() ? QString() : u"<para style=\"d\">%1</para>"_s.arg(first.title);
        return u"<chapter number=\"%1\" style=\"c\"/><para style=\"s1\">Head</para>%2"
               u"<para style=\"p\">\n"_s.arg(first.chapter, title);
    };
    const auto verse = [](const SampleVerse& each) {
        return u"<verse number=\"%1\" style=\"v\"/>%2<verse eid=\"x\"/>\n"_s.arg(
            each.verse, joined(each, usxPart));
    };
    const Frame frame{book, chapter, verse, u"</para><chapter eid=\"x\"/>\n"_s, {}};
    return (u"<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<usx version=\"3.0\">\n"_s
            + framed(verses, frame) + u"</usx>\n"_s)
        .toUtf8();
}

QByteArray usfx(const QList<SampleVerse>& verses) {
    const auto book = [](const QString& name) {
        return u"<book id=\"%1\"><id id=\"%1\">A sample</id><h>Header</h><p sfm=\"mt\">T</p>\n"_s
            .arg(usfmId(name));
    };
    const auto chapter = [](const SampleVerse& first) {
        const QString title = first.title.isEmpty() ? QString() : u"<d>%1</d>"_s.arg(first.title);
        return u"<c id=\"%1\"/><s>Head</s>%2<p>\n"_s.arg(first.chapter, title);
    };
    const auto verse = [](const SampleVerse& each) {
        return u"<v id=\"%1\"/>%2<ve/>\n"_s.arg(each.verse, joined(each, usfxPart));
    };
    return (u"<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<usfx><languageCode>eng</languageCode>\n"_s
            + framed(verses, {book, chapter, verse, u"</p>\n"_s, u"</book>\n"_s}) + u"</usfx>\n"_s)
        .toUtf8();
}

QByteArray zefania(const QList<SampleVerse>& verses) {
    const auto book = [](const QString& name) {
        return u"<BIBLEBOOK bnumber=\"%1\" bname=\"%2\">\n"_s.arg(numberOf(name), name);
    };
    const auto chapter = [](const SampleVerse& first) {
        const QString title = first.title.isEmpty()
                                  ? QString()
                                  : u"<PROLOG vref=\"1\">%1</PROLOG>"_s.arg(first.title);
        return u"<CHAPTER cnumber=\"%1\"><CAPTION vref=\"1\">Head</CAPTION>%2\n"_s.arg(
            first.chapter, title);
    };
    const auto verse = [](const SampleVerse& each) {
        return u"<VERS vnumber=\"%1\">%2</VERS>\n"_s.arg(each.verse, joined(each, zefaniaPart));
    };
    return (u"<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<XMLBIBLE biblename=\"x\"><INFORMATION>"
            u"<title>Sample</title><rights>Free</rights></INFORMATION>\n"_s
            + framed(verses, {book, chapter, verse, u"</CHAPTER>\n"_s, u"</BIBLEBOOK>\n"_s})
            + u"</XMLBIBLE>\n"_s)
        .toUtf8();
}

QString plainText(const SampleVerse& verse) {
    QString text = verse.title.isEmpty() ? QString() : verse.title + u' ';
    for (const SamplePart& part : verse.parts)
        text += part.kind == PartKind::Note ? u" "_s : part.text;
    return text;
}

QByteArray delimited(const QList<SampleVerse>& verses, QChar delimiter, bool isQuoted) {
    QString text;
    for (const SampleVerse& verse : verses) {
        const QString words = plainText(verse);
        const QString field = u'"' + QString(words).replace(u"\""_s, u"\"\""_s) + u'"';
        text += verse.book + delimiter + verse.chapter + delimiter + verse.verse + delimiter
                + (isQuoted ? field : words) + u'\n';
    }
    return text.toUtf8();
}

QByteArray tabs(const QList<SampleVerse>& verses) {
    return delimited(verses, u'\t', false);
}

QByteArray commas(const QList<SampleVerse>& verses) {
    return "book,chapter,verse,text\n" + delimited(verses, u',', true);
}

QByteArray semicolons(const QList<SampleVerse>& verses) {
    return delimited(verses, u';', true);
}

QByteArray pipes(const QList<SampleVerse>& verses) {
    return delimited(verses, u'|', false);
}

QByteArray references(const QList<SampleVerse>& verses) {
    QString text;
    for (const SampleVerse& each : verses)
        text += u"%1 %2:%3 "_s.arg(each.book, each.chapter, each.verse) + plainText(each) + u'\n';
    return text.toUtf8();
}

constexpr std::array Formats{
    SampleFormat{"osis", "osis.xml", osisContainers, true, true},
    SampleFormat{"osisMilestones", "milestones.xml", osisMilestones, true, true},
    SampleFormat{"usfm", "sample.usfm", usfm, false, true},
    SampleFormat{"usx", "sample.usx", usx, true, true},
    SampleFormat{"usfx", "usfx.xml", usfx, true, true},
    SampleFormat{"zefania", "zefania.xml", zefania, true, true},
    SampleFormat{"tabs", "tabs.txt", tabs, false, false},
    SampleFormat{"commas", "commas.csv", commas, false, false},
    SampleFormat{"semicolons", "semicolons.csv", semicolons, false, false},
    SampleFormat{"pipes", "pipes.txt", pipes, false, false},
    SampleFormat{"references", "references.txt", references, false, false},
};

} // namespace

std::span<const SampleFormat> sampleFormats() {
    return Formats;
}

const SampleFormat& sampleFormat(const char* name) {
    for (const SampleFormat& format : Formats) {
        if (std::strcmp(format.name, name) == 0)
            return format;
    }
    ADD_FAILURE() << name;
    return Formats.front();
}

QString
writeSample(const SampleFormat& format, const QList<SampleVerse>& verses, const QString& folder) {
    return writeFile(folder, QString::fromLatin1(format.fileName), format.content(verses));
}

QString writeFile(const QString& folder, const QString& name, const QByteArray& content) {
    QDir().mkpath(folder);
    QFile file(folder + u'/' + name);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    EXPECT_EQ(file.write(content), content.size());
    return file.fileName();
}

void PrintTo(const SampleFormat& format, std::ostream* stream) {
    *stream << format.name;
}
