#include "qxVariants.h"

#include "Files/qxMemoryBudget.h"
#include "Files/qxOutputFile.h"
#include "Publish/qxPlainExport.h"
#include "Report/qxOutput.h"
#include "Report/qxStreams.h"
#include "Session/qxSession.h"
#include "qxCommand.h"
#include "qxUnknownName.h"

#include <QCommandLineParser>
#include <QJsonObject>

namespace {

QList<QCommandLineOption> exportOptions()
{
    return {
        {QStringLiteral("out"), QStringLiteral("Writes the scene to GLB."), QStringLiteral("GLB")},
        {QStringLiteral("set"),
         QStringLiteral("Exports the scene as the set NAME shows it, without variants."),
         QStringLiteral("NAME")},
        {QStringLiteral("default"),
         QStringLiteral("Nodes, poses and lights are those of the set NAME; without it those "
                        "of the scene as it was opened."),
         QStringLiteral("NAME")},
        {QStringLiteral("compress"),
         QStringLiteral("Compresses meshes and pictures, for viewers that can read them.")},
        qxCommands::jsonOption(),
        qxCommands::traceOption()};
}

QJsonObject sizesOf(const qxExport::Size &size)
{
    return {{QStringLiteral("before"), size.before}, {QStringLiteral("after"), size.after}};
}

void print(const QString &out, const qxExport &file, const qxLossReport &report, bool json)
{
    if (json) {
        QJsonObject object = report.toJson();
        object[QStringLiteral("file")] = out;
        object[QStringLiteral("bytes")] = file.glb.size();
        object[QStringLiteral("meshes")] = sizesOf(file.meshes);
        object[QStringLiteral("pictures")] = sizesOf(file.pictures);
        return qxOutput::json(object);
    }
    const auto amount = [](const char *what, const qxExport::Size &size) {
        const QString after = qxMemoryBudget::text(double(size.after));
        return size.before == size.after
            ? QStringLiteral("%1 of %2").arg(after, QLatin1String(what))
            : QStringLiteral("%1 of %2, before %3")
                  .arg(after, QLatin1String(what), qxMemoryBudget::text(double(size.before)));
    };
    qxOutput::line(QStringLiteral("%1: %2 (%3; %4)")
                       .arg(out, qxMemoryBudget::text(file.glb.size()),
                            amount("meshes", file.meshes), amount("pictures", file.pictures)));
    report.print();
}

int runExport(const QCommandLineParser &parser)
{
    const QString path = parser.positionalArguments().first();
    const QString out = parser.value(QStringLiteral("out"));
    if (out.isEmpty())
        return qxCommands::fail(QStringLiteral("export needs --out GLB"), WrongUse);
    if (parser.isSet(QStringLiteral("set")) && parser.isSet(QStringLiteral("default")))
        return qxCommands::fail(QStringLiteral("--set and --default do not go together"), WrongUse);
    if (qxOutputFile::isSame(out, path))
        return qxCommands::fail(
            QStringLiteral("%1: an export has no variants to edit; it must not replace its scene")
                .arg(out),
            WrongUse);
    qxSession session(parser.isSet(QStringLiteral("trace")));
    if (!session.open(path))
        return WorkFailed;
    const QString name = parser.isSet(QStringLiteral("set"))
        ? parser.value(QStringLiteral("set"))
        : parser.value(QStringLiteral("default"));
    const qxVariantSet *const shown = name.isEmpty() ? nullptr : qxVariants::findVariantSet(name);
    if (!name.isEmpty() && !shown)
        return qxCommands::fail(qxUnknownName::set(name));
    qxExport file;
    qxLossReport report;
    const QString flaw = qxPlainExport::make(
        session.file(),
        {shown, parser.isSet(QStringLiteral("set")), parser.isSet(QStringLiteral("compress"))},
        file, report);
    if (!flaw.isEmpty())
        return qxCommands::fail(flaw);
    if (!qxStreams::write(out, file.glb))
        return WorkFailed;
    print(out, file, report, parser.isSet(QStringLiteral("json")));
    return Success;
}

} // namespace

const qxCommand qxCommands::exportScene = {
    "export",
    "FILE",
    "Writes the scene as plain glTF for other programs, its sets as variants of materials.",
    1,
    1,
    exportOptions,
    runExport,
    "Other programs know variants of materials and nothing else that sets do. A report tells what "
    "is\ncarried, what is only there in another form, and what is dropped and why."};
