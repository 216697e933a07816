#include "qxLintParts.h"

qxLintSpot qxLintSpot::of(const qxDocumentGroup &group)
{
    return {{qxFindingPlace::Group, QString(), nullptr, group.name, QString()},
            group.path,
            group.location};
}

qxLintSpot qxLintSpot::of(const qxDocumentSet &set)
{
    return {{qxFindingPlace::Set, set.name, nullptr, QString(), QString()}, set.path, set.location};
}

qxLintSpot qxLintSpot::of(const qxDocumentVariant &variant)
{
    return {{qxFindingPlace::Variant, QString(), variant.kind, variant.name, QString()},
            variant.path,
            variant.location};
}

qxLintSpot qxLintSpot::within(const QString &tag, const qxSourceLocation &where,
                              const qxFindingPlace &part) const
{
    return {part,
            path.isEmpty() ? path : QStringLiteral("%1/%2[%3]").arg(path, tag).arg(where.ordinal),
            where};
}

void qxLintContext::add(qxCode code, const qxLintSpot &spot, const QString &message,
                        const QString &detail)
{
    findings.add({code, message, spot.path, spot.location.line, spot.location.column, 0, spot.place,
                  detail});
}

void qxTwinLint::add(const qxLintSpot &spot, const QString &replacing, int line)
{
    m_context.add(m_code, spot,
                  line > 0 ? QStringLiteral("%1 the one of line %2").arg(replacing).arg(line)
                           : replacing + QStringLiteral(" an earlier one"));
}
