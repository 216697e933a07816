#include "qxDocumentBindings.h"

#include "Registry/qxRegistryEdit.h"
#include "Rename/qxRegistryRename.h"
#include "Repair/qxDocumentRepair.h"
#include "Report/qxDiffReport.h"
#include "Report/qxMergeReport.h"
#include "Session/qxEditedDocument.h"
#include "Session/qxFileMerge.h"
#include "Table/qxSetTable.h"
#include "Table/qxSetTableReader.h"
#include "qxRegistryDocument.h"
#include "qxText.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <boost/python.hpp>

namespace python = boost::python;

namespace {

/// Raises a ValueError.
[[noreturn]] void refuse(const QString &reason)
{
    PyErr_SetString(PyExc_ValueError, qxText::toUtf8(reason).c_str());
    python::throw_error_already_set();
    std::abort(); // not reached
}

/// What the session holds.
qxDocument current()
{
    qxDocument document = qxRegistryDocument::current();
    document.settle();
    return document;
}

std::string getVariantSetTable(const std::string &separator)
{
    if (separator != "," && separator != ";" && separator != "\t")
        refuse(QStringLiteral("a separator is a comma, a semicolon or a tab"));
    const qxDocument document = current();
    if (qxSetTable::mostBytes(document) > INT_MAX)
        refuse(QStringLiteral("the table would be too large"));
    return qxSetTable::write(document, {separator[0], false}).toStdString();
}

bool editVariantSets(const std::string &table)
{
    const QByteArray bytes = QByteArray::fromStdString(table);
    const qxSetTableReader::Reading reading = qxSetTableReader::read(bytes, current());
    QStringList reasons;
    for (const qxSetTableReader::Flaw &flaw : reading.flaws)
        reasons +=
            flaw.cell.isEmpty() ? flaw.reason : flaw.cell + QLatin1String(": ") + flaw.reason;
    if (reading.furtherFlaws > 0)
        reasons += QStringLiteral("and %1 more").arg(reading.furtherFlaws);
    if (!reasons.isEmpty())
        refuse(reasons.join(QLatin1Char('\n')));
    return qxRegistryEdit::apply(reading.document);
}

/// The document in that file; without a name what the session holds.
void load(const std::string &path, QString &name, qxDocument &document)
{
    name = qxText::fromUtf8(path);
    if (name.isEmpty()) {
        name = QStringLiteral("the session");
        document = current();
        return;
    }
    qxDocumentFile file;
    if (!file.load(name))
        refuse(file.errorString());
    if (!qxEditedDocument::read(name, file.document(), document))
        refuse(QStringLiteral("%1: the variants document cannot be read").arg(name));
}

std::string compareVariants(const std::string &before, const std::string &after, bool json)
{
    qxFileComparison comparison;
    load(before, comparison.nameBefore, comparison.before);
    load(after, comparison.nameAfter, comparison.after);
    comparison.variants = qxDocumentDiff::of(comparison.before, comparison.after);
    if (json)
        return QJsonDocument(qxDiffReport::json(comparison)).toJson().toStdString();
    return comparison.isDifferent() ? qxText::toUtf8(qxDiffReport::text(comparison))
                                    : std::string();
}

std::string mergeVariants(const std::string &base, const std::string &ours,
                          const std::string &theirs, const std::string &out,
                          const std::string &prefer)
{
    if (!prefer.empty() && prefer != "ours" && prefer != "theirs")
        refuse(QStringLiteral("what is preferred is ours or theirs"));
    const qxMergePreference preference = prefer.empty() ? qxMergePreference::Both
        : prefer == "ours"                              ? qxMergePreference::Ours
                                                        : qxMergePreference::Theirs;
    const QString name = qxText::fromUtf8(out);
    qxFileMerge merge;
    if (!merge.merge({qxText::fromUtf8(base), qxText::fromUtf8(ours), qxText::fromUtf8(theirs)},
                     preference)
        || !merge.save(name))
        refuse(QStringLiteral("%1: nothing is written").arg(name));
    return qxText::toUtf8(qxMergeReport::text(merge, name));
}

python::list placesOf(const std::vector<qxRenameNote> &notes)
{
    python::list places;
    for (const qxRenameNote &each : notes)
        places.append(python::make_tuple(qxText::toUtf8(each.place), qxText::toUtf8(each.before),
                                         qxText::toUtf8(each.after)));
    return places;
}

python::tuple renameEverywhere(const std::string &kind, const std::string &before,
                               const std::string &after, const std::string &of, bool dryRun)
{
    qxRenameRequest request;
    const QString word = qxText::fromUtf8(kind);
    if (!qxRenameWords::take(word, request))
        refuse(QStringLiteral("nothing is of the kind \"%1\"").arg(word));
    request.before = qxText::fromUtf8(before);
    request.after = qxText::fromUtf8(after);
    request.owner = qxText::fromUtf8(of);
    const qxRegistryRename::Outcome outcome = qxRegistryRename::apply(word, request, dryRun);
    if (!outcome.refusal.isEmpty())
        refuse(outcome.refusal);
    return python::make_tuple(placesOf(outcome.impact.changed), placesOf(outcome.impact.left));
}

python::list findBrokenNames()
{
    python::list all;
    for (const qxBreak &each : qxDocumentRepair::find(current())) {
        python::list candidates;
        for (const qxRepairCandidate &candidate : each.candidates)
            candidates.append(python::make_tuple(qxText::toUtf8(candidate.name), candidate.score,
                                                 qxText::toUtf8(candidate.reason)));
        python::list places;
        for (const QString &place : each.places)
            places.append(qxText::toUtf8(place));
        all.append(python::make_tuple(qxText::toUtf8(each.key()), places, candidates));
    }
    return all;
}

bool repairName(const std::string &key, const std::string &name)
{
    qxDocument document = current();
    for (qxBreak &each : qxDocumentRepair::find(document)) {
        if (each.key() != qxText::fromUtf8(key))
            continue;
        each.candidates = {{qxText::fromUtf8(name), 1, QString()}};
        qxDocumentRepair::apply(document, {each});
        return qxRegistryEdit::apply(document);
    }
    return false;
}

python::list repairNames()
{
    qxDocument document = current();
    python::list repaired;
    for (const qxBreak &each : qxDocumentRepair::applyClear(document))
        repaired.append(python::make_tuple(qxText::toUtf8(each.key()),
                                           qxText::toUtf8(each.candidates.front().name)));
    qxRegistryEdit::apply(document);
    return repaired;
}

void defineRenames()
{
    python::def(
        "renameEverywhere", renameEverywhere,
        (python::arg("kind"), python::arg("before"), python::arg("after"), python::arg("of") = "",
         python::arg("dryRun") = false),
        "Renames something of the scene or its variants, and every place that names it. The kinds "
        "are those of the command rename; `of` is the variant that has an option, or the node of "
        "a transform state. Gives two lists of tuples of a place, what stood there, and what "
        "stands there now: what was changed, and where to look because nobody can tell. With "
        "dryRun nothing is changed. Raises a ValueError when the thing is not there, or cannot "
        "have the name.");
    python::def("findBrokenNames", findBrokenNames,
                "What variants and sets name in vain: tuples of a key such as \"node:Roof\", the "
                "places that have the name, and candidates, the best first: tuples of a name, a "
                "score from 0 to 1, and what speaks for it.");
    python::def("repairName", repairName, (python::arg("key"), python::arg("name")),
                "Puts the name in all places of what findBrokenNames has under that key; False "
                "when nothing is broken there.");
    python::def("repairNames", repairNames,
                "Repairs all broken names of which only one thing can be meant; tuples of the key "
                "and the new name.");
}

} // namespace

void qxDocumentBindings::define()
{
    const python::docstring_options onlyOwnTexts(true, false, false);
    const python::scope names(python::import("__main__"));
    python::def("getVariantSetTable", getVariantSetTable, python::arg("separator") = ",",
                "The variant sets as a table, CSV: a row for each set, a column for each variant, "
                "a state in each cell. A comma, a semicolon or a tab separates the cells.");
    python::def("editVariantSets", editVariantSets, python::arg("table"),
                "Edits the variant sets as such a table says, of which rows and columns may be "
                "left out; whether that changed anything. Raises a ValueError that tells of every "
                "wrong cell, and changes nothing then.");
    python::def("compareVariants", compareVariants,
                (python::arg("before"), python::arg("after") = "", python::arg("json") = false),
                "What differs between the variants of two files, scenes or documents, as a text "
                "for people, which is empty when nothing does, or as JSON. An empty name stands "
                "for what the session holds. Raises a ValueError for a file that cannot be read.");
    python::def("mergeVariants", mergeVariants,
                (python::arg("base"), python::arg("ours"), python::arg("theirs"),
                 python::arg("out"), python::arg("prefer") = ""),
                "Writes to a file what two sides made of another one, scenes or documents, and "
                "answers the conflicts as a text, which is empty when there is none. \"ours\" or "
                "\"theirs\" is preferred in them, else both versions are kept. Raises a ValueError "
                "when nothing can be written.");
    defineRenames();
}
