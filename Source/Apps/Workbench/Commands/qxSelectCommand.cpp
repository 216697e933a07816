#include "qxVariantKinds.h"
#include "qxVariantSet.h"
#include "qxVariants.h"

#include "Cameras/qxMainView.h"
#include "Report/qxChangeReport.h"
#include "Report/qxOutput.h"
#include "Session/qxInterrupt.h"
#include "Session/qxSceneRecord.h"
#include "Session/qxSession.h"
#include "qxCommand.h"
#include "qxExplanation.h"
#include "qxText.h"
#include "qxUnknownName.h"

#include <QCommandLineParser>
#include <QJsonArray>
#include <QJsonObject>

namespace {

QList<QCommandLineOption> selectOptions()
{
    return {{QStringLiteral("keep-camera"), QStringLiteral("Stays where the camera is.")},
            {QStringLiteral("dry-run"),
             QStringLiteral("Tells what would change, and changes nothing. Scripts are not run.")},
            qxCommands::scriptsOption(),
            qxCommands::noScriptsOption(),
            qxCommands::saveOption(),
            qxCommands::jsonOption(),
            qxCommands::recordOption(),
            qxCommands::traceOption()};
}

/// Whether there are sets of all these names; says which one is missing.
bool areSets(const QStringList &names)
{
    for (const QString &name : names) {
        if (!qxVariants::findVariantSet(name)) {
            qxOutput::error(qxUnknownName::set(name));
            return false;
        }
    }
    return true;
}

/// What the set refers to although the registry does not have it.
QStringList missingVariants(const qxVariantSet &set)
{
    QStringList missing;
    for (const qxVariantKind *kind : qxVariantKinds::selectionOrder().all()) {
        for (const qxVariantState &state : set.*kind->states) {
            if (!kind->find(state.variant))
                missing += QStringLiteral("no %1 variant \"%2\"").arg(kind->word, state.variant);
        }
    }
    return missing;
}

/// A set that the script of an earlier one has removed or renamed is missing like anything else.
QStringList missingFor(const QString &name)
{
    const qxVariantSet *const set = qxVariants::findVariantSet(name);
    return set ? missingVariants(*set) : QStringList(QStringLiteral("no longer there"));
}

/// Prints reports as they come, or all of them at the end as JSON.
class Reports {
public:
    explicit Reports(bool json) : m_json(json) {}
    ~Reports()
    {
        if (m_json)
            qxOutput::json(m_array);
    }
    void add(const qxChangeReport &report)
    {
        if (m_json)
            m_array += report.toJson();
        else
            report.print();
    }

private:
    const bool m_json;
    QJsonArray m_array;
};

/// Where the camera ends; empty when it stays.
QString viewpointAfter(const qxExplanation &explanation, bool keepCamera)
{
    QString viewpoint;
    for (const qxExplainedEntry &entry : explanation.entries()) {
        const bool isMove = (entry.kind == QLatin1String("viewpoint") && !keepCamera)
            || entry.kind == QLatin1String("default viewpoint");
        if (isMove && !entry.code)
            viewpoint = entry.name;
    }
    return viewpoint;
}

/// Tells what selecting the sets would change, each after the ones before it.
void foreseeAll(const QStringList &names, bool keepCamera, bool json)
{
    Reports reports(json);
    qxForecast forecast;
    qxSceneState state = qxSceneState::take();
    QString viewpoint = qxText::fromUtf8(qxMainView::the().viewpointName());
    for (const QString &name : names) {
        const qxVariantSet &set = *qxVariants::findVariantSet(name);
        const qxExplanation explanation(set, forecast);
        const QString next = viewpointAfter(explanation, keepCamera);
        qxChangeReport report(state);
        state = state.after(forecast);
        report.foresee(set, explanation, state, next == viewpoint ? QString() : next,
                       missingVariants(set));
        viewpoint = next.isEmpty() ? viewpoint : next;
        reports.add(report);
    }
}

/// What a script has left half done takes no file's place.
int saveAfterScripts(qxSession &session, const QCommandLineParser &parser)
{
    const int code = qxCommands::codeAfterScripts();
    if (code == Success)
        return qxCommands::saveIfAsked(session, parser);
    const QString out = parser.value(QStringLiteral("save"));
    if (!out.isEmpty())
        qxOutput::error(QStringLiteral("%1: not written, because a script failed").arg(out));
    return code;
}

void selectAll(const qxSession &session, const QCommandLineParser &parser)
{
    Reports reports(parser.isSet(QStringLiteral("json")));
    const bool keepCamera = parser.isSet(QStringLiteral("keep-camera"));
    for (const QString &name : parser.positionalArguments().mid(1)) {
        if (qxInterrupt::isAsked())
            return;
        const QStringList missing = missingFor(name);
        qxChangeReport report;
        qxVariants::selectVariantSet(qxText::toUtf8(name).c_str(), keepCamera);
        report.finish(name, missing);
        if (parser.isSet(QStringLiteral("record")))
            report.setRecord(qxSceneRecord::take(session.file()));
        reports.add(report);
    }
}

int runSelect(const QCommandLineParser &parser)
{
    const QStringList names = parser.positionalArguments().mid(1);
    const bool json = parser.isSet(QStringLiteral("json"));
    if (!qxCommands::checkRecord(parser))
        return WrongUse;
    qxSession session(parser.isSet(QStringLiteral("trace")));
    // Looked up before the first selection: nothing is half done because of a misspelt name.
    if (!session.open(parser.positionalArguments().first()) || !areSets(names))
        return WorkFailed;

    if (parser.isSet(QStringLiteral("dry-run"))) {
        if (parser.isSet(QStringLiteral("save")))
            return qxCommands::fail(QStringLiteral("--dry-run changes nothing to save"));
        foreseeAll(names, parser.isSet(QStringLiteral("keep-camera")), json);
        return Success;
    }
    selectAll(session, parser);
    return saveAfterScripts(session, parser);
}

} // namespace

const qxCommand qxCommands::select = {
    "select",      "FILE SET...", "Selects variant sets one after the other.", 2, -1,
    selectOptions, runSelect};
