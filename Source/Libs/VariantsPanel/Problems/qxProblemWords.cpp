#include "qxProblemWords.h"

#include "qxVariant.h"
#include "qxVariantKind.h"

#include "qxStateWords.h"

#include <QCoreApplication>

namespace {

QString meaning(const char *text)
{
    QString meaning = QCoreApplication::translate("qxCheckCodes", text);
    return meaning.replace(0, 1, meaning.left(1).toUpper());
}

QString shownState(const qxFindingPlace &place)
{
    return qxStateWords::shown(*place.kind, place.kind->find(place.name), place.state);
}

} // namespace

QString qxProblemWords::severity(qxSeverity severity)
{
    switch (severity) {
    case qxSeverity::Error:
        return QCoreApplication::translate("qxProblemWords", "error");
    case qxSeverity::Warning:
        return QCoreApplication::translate("qxProblemWords", "warning");
    default:
        return QCoreApplication::translate("qxProblemWords", "hint");
    }
}

QString qxProblemWords::text(const qxFinding &finding)
{
    const QString text = meaning(qxCheckCodes::row(finding.code).title);
    return finding.detail.isEmpty() ? text : QStringLiteral("%1: %2").arg(text, finding.detail);
}

QString qxProblemWords::place(const qxFindingPlace &place)
{
    const auto ofSet = [&place](const QString &part) {
        return QStringLiteral("%1: %2").arg(
            QCoreApplication::translate("qxProblemWords", "Set %1").arg(place.set), part);
    };
    switch (place.sort) {
    case qxFindingPlace::Document:
        return QString();
    case qxFindingPlace::Group:
        return QCoreApplication::translate("qxProblemWords", "Group %1").arg(place.name);
    case qxFindingPlace::Set:
        return QCoreApplication::translate("qxProblemWords", "Set %1").arg(place.set);
    case qxFindingPlace::Script:
        return ofSet(QCoreApplication::translate("qxProblemWords", "script"));
    case qxFindingPlace::Reference:
        return ofSet(QStringLiteral("%1, %2").arg(place.name, shownState(place)));
    case qxFindingPlace::Variant:
        return QCoreApplication::translate("qxProblemWords", "Variant %1").arg(place.name);
    case qxFindingPlace::Option:
        return QStringLiteral("%1: %2").arg(
            QCoreApplication::translate("qxProblemWords", "Variant %1").arg(place.name),
            shownState(place));
    default:
        return ofSet(place.name);
    }
}

QString qxProblemWords::toolTip(const qxFinding &finding)
{
    const qxCodeRow &row = qxCheckCodes::row(finding.code);
    return QStringLiteral("<p><b>%1 (%2, %3)</b></p><p>%4</p>")
        .arg(text(finding).toHtmlEscaped(), severity(row.severity), QLatin1String(row.id),
             meaning(row.advice).toHtmlEscaped());
}
