#include "jet/JetLongValue.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int HeadSize = 12;
constexpr int PointerOffset = 4;
constexpr quint32 SizeMask = 0x3fffffff;
constexpr quint32 InRow = 0x80000000;
constexpr quint32 OnePiece = 0x40000000;
constexpr int NextPointerSize = 4;

constexpr int OwnerOffset = 4;
constexpr QByteArrayView Owner("LVAL", 4);

QByteArrayView piece(JetFile& file, quint32 pointer) {
    const JetPlace place = JetPlace::fromPointer(pointer);
    const QByteArrayView page = file.sidePage(place.page);
    if (page[0] != JetDataPage || page.sliced(OwnerOffset, Owner.size()) != Owner)
        file.failAsDamaged(u"page %1 holds no long values"_s.arg(place.page));
    const JetSlot slot = file.slot(page, place.row);
    if (slot.flags != 0)
        file.failAsDamaged(u"a long value was deleted"_s);
    return page.sliced(slot.start, slot.size);
}

// A chain that loops gets longer than the value and stops there.
QByteArray readChain(JetFile& file, quint32 pointer, qsizetype size) {
    QByteArray value;
    while (pointer != 0 && value.size() <= size) {
        const QByteArrayView bytes = piece(file, pointer);
        if (bytes.size() <= NextPointerSize)
            file.failAsDamaged(u"the chain of a long value is broken"_s);
        value.append(bytes.sliced(NextPointerSize));
        pointer = jetLong(bytes, 0);
    }
    return value;
}

QByteArray readValue(JetFile& file, QByteArrayView inRow, quint32 size) {
    const quint32 kind = jetLong(inRow, 0) & ~SizeMask;
    const quint32 pointer = jetLong(inRow, PointerOffset);
    if (kind == InRow)
        return inRow.sliced(HeadSize).toByteArray();
    if (kind == OnePiece)
        return piece(file, pointer).toByteArray();
    if (kind != 0)
        file.failAsDamaged(u"a long value is of an unknown kind"_s);
    return readChain(file, pointer, size);
}

} // namespace

QByteArray readLongValue(JetFile& file, QByteArrayView inRow) {
    if (inRow.isEmpty())
        return {};
    if (inRow.size() < HeadSize)
        file.failAsDamaged(u"a long value is cut off"_s);
    const quint32 size = jetLong(inRow, 0) & SizeMask;
    if (size > LargestLongValue)
        file.failAsDamaged(u"a long value claims %1 bytes"_s.arg(size));
    QByteArray value = readValue(file, inRow, size);
    if (value.size() != static_cast<qsizetype>(size))
        file.failAsDamaged(u"the chain of a long value is broken"_s);
    return value;
}
