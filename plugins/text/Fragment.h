// Walks through a piece of mark-up, such as an entry of a dictionary.
#pragma once

#include <QString>
#include <QXmlStreamAttributes>

class FragmentVisitor {
public:
    FragmentVisitor() = default;
    virtual ~FragmentVisitor() = default;
    Q_DISABLE_COPY_MOVE(FragmentVisitor)

    virtual void startElement(QStringView name, const QXmlStreamAttributes& attributes) = 0;
    virtual void endElement(QStringView name) = 0;
    virtual void characters(QStringView text) = 0;
};

// Shows the visitor every element and text. A fragment that is not well formed is shown as plain
// text, without its tags, and the answer is false.
bool visitFragment(const QString& fragment, FragmentVisitor& visitor);
