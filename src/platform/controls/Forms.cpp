#include "controls/Forms.h"

#include <QList>
#include <algorithm>

namespace {

QList<QPointer<Form>>& keptForms() {
    static QList<QPointer<Form>> kept;
    return kept;
}

} // namespace

void forms::keep(Form& form) {
    QList<QPointer<Form>>& kept = keptForms();
    kept.removeIf([](const QPointer<Form>& each) { return each.isNull(); });
    kept.append(&form);
}

void forms::discardAll() {
    const QList<QPointer<Form>> kept = std::exchange(keptForms(), {});
    for (const QPointer<Form>& form : kept)
        delete form.data();
}
