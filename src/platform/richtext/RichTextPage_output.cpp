// The page on paper and in files.
#include "basic/Error.h"
#include "desktop/HostPath.h"
#include "richtext/RichDocument.h"
#include "richtext/RichTextPage.h"

#include <QPagedPaintDevice>
#include <QSaveFile>
#include <QTextDocumentFragment>

using namespace Qt::StringLiterals;

void RichTextPage::SelPrint(QPagedPaintDevice& printer) const {
    const QTextCursor selected = selection();
    if (!selected.hasSelection()) {
        document()->print(&printer);
        return;
    }
    QTextDocument part;
    part.setDefaultFont(document()->defaultFont());
    part.setDefaultTextOption(document()->defaultTextOption());
    QTextCursor cursor(&part);
    cursor.setBlockFormat(blockFormat({}));
    cursor.insertFragment(selected.selection());
    part.print(&printer);
}

void RichTextPage::SaveFile(const QString& path, FileFormat format) const {
    const QByteArray content = (format == rtfText ? Text() : TextRTF()).toUtf8();
    QSaveFile file(hostPath(path));
    const bool saved = file.open(QIODevice::WriteOnly | QIODevice::Text)
                       && file.write(content) == content.size() && file.commit();
    if (!saved) {
        throw Error(
            Error::PathAccess,
            u"The file \"%1\" could not be written: %2"_s.arg(path, file.errorString()));
    }
}
