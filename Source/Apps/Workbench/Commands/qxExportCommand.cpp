#include "qxVariantSet.h"
#include "qxVariants.h"

#include "Cameras/qxMainView.h"
#include "Files/qxMemoryBudget.h"
#include "Files/qxOutputFile.h"
#include "Publish/qxExportLosses.h"
#include "Publish/qxMaterialForecast.h"
#include "Report/qxOutput.h"
#include "Report/qxStreams.h"
#include "Script/qxScriptRunner.h"
#include "Session/qxSession.h"
#include "qxCommand.h"
#include "qxExplanation.h"
#include "qxText.h"
#include "qxUnknownName.h"

#include <QCommandLineParser>
#include <QJsonObject>

#include <algorithm>
#include <numeric>

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

/// Selects the set, without its script.
void showSet(const qxVariantSet &set)
{
    const qxScriptRunner::Allowed before = qxScriptRunner::setAllowed(qxScriptRunner::Nothing);
    qxVariants::selectVariantSet(qxText::toUtf8(set.name).c_str(), false);
    qxScriptRunner::setAllowed(before);
}

/// All viewpoints, that of the view first.
std::vector<int> viewpoints()
{
    std::vector<int> ids(std::size_t(qxUberCameraPool::the()->count()));
    std::iota(ids.begin(), ids.end(), 0);
    const auto shown = std::find(ids.begin(), ids.end(), qxMainView::the().viewpoint);
    if (shown != ids.end())
        std::rotate(ids.begin(), shown, shown + 1);
    return ids;
}

std::vector<qxExportOptions::Variant> variants(const qxMaterialForecast &materials)
{
    std::vector<qxExportOptions::Variant> all;
    for (const qxVariantSet *set : qxVariants::_variantSets) {
        qxForecast forecast;
        const qxExplanation foreseen(*set, forecast);
        all.push_back({qxText::toUtf8(set->name), materials.changes(forecast)});
    }
    return all;
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

/// Makes the file, writes and reports it.
int exportScene(const qxSession &session, const QCommandLineParser &parser,
                const qxVariantSet *shown)
{
    const bool isOne = parser.isSet(QStringLiteral("set"));
    const QString out = parser.value(QStringLiteral("out"));
    const qxMaterialForecast materials;
    qxExportOptions options;
    options.compress = parser.isSet(QStringLiteral("compress"));
    options.viewpoints = viewpoints();
    if (!isOne)
        options.variants = variants(materials);
    qxExport file;
    const QString flaw = session.file().makeExport(options, file);
    if (!flaw.isEmpty())
        return qxCommands::fail(flaw);
    qxExportLosses losses(file, materials);
    losses.addScene(file);
    for (const qxVariantSet *set : qxVariants::_variantSets) {
        if (set == shown || !isOne)
            losses.addSet(*set, set == shown ? qxExportLosses::Scene : qxExportLosses::Variant);
    }
    if (!qxStreams::write(out, file.glb))
        return WorkFailed;
    print(out, file, losses.report(), parser.isSet(QStringLiteral("json")));
    return Success;
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
    if (shown)
        showSet(*shown);
    return exportScene(session, parser, shown);
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
