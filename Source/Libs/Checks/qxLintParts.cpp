#include "qxLintParts.h"

void qxLintContext::add(qxCode code, const qxFindingPlace &place, const QString &message,
                        const QString &owner, const QString &tag, const qxSourceLocation &location)
{
    add(code, place, message, QStringLiteral("%1/%2[%3]").arg(owner, tag).arg(location.ordinal),
        location);
}

void qxLintContext::add(qxCode code, const qxFindingPlace &place, const QString &message,
                        const QString &path, const qxSourceLocation &location)
{
    findings.add({code, message, path, location.line, location.column, 0, place});
}

qxFindingPlace qxLintContext::placeOf(const qxDocumentGroup &group)
{
    return {qxFindingPlace::Group, QString(), nullptr, group.name, QString()};
}

qxFindingPlace qxLintContext::placeOf(const qxDocumentSet &set)
{
    return {qxFindingPlace::Set, set.name, nullptr, QString(), QString()};
}

qxFindingPlace qxLintContext::placeOf(const qxDocumentVariant &variant)
{
    return {qxFindingPlace::Variant, QString(), variant.kind, variant.name, QString()};
}
