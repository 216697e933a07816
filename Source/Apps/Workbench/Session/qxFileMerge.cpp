#include "Session/qxFileMerge.h"

#include "Report/qxOutput.h"
#include "Session/qxEditedDocument.h"
#include "qxDocumentXml.h"
#include "qxLog.h"
#include "qxText.h"

#include <QXmlStreamReader>

namespace {

bool fail(const QString &reason)
{
    qxOutput::error(reason);
    return false;
}

bool isEmpty(const qxDocumentFile &file)
{
    return !file.isScene() && file.document().isEmpty();
}

/// Any root element is taken, but one that is not ours and gave nothing is a wrong file.
bool isWrongFile(const qxDocumentFile &file, const qxDocument &document)
{
    QXmlStreamReader reader(file.document());
    return document.groups.empty() && document.sets.empty() && document.variants.empty()
        && reader.readNextStartElement() && reader.name() != QLatin1String("Variants");
}

} // namespace

bool qxFileMerge::merge(const Files &files, qxMergePreference wanted)
{
    preference = wanted;
    qxDocumentFile base, theirs;
    qxDocument before, one, other;
    const auto nameOf = [&files](const QString &path, const char *side) {
        return files.label.isEmpty()
            ? path
            : QStringLiteral("%1 (%2)").arg(files.label, QLatin1String(side));
    };
    const QString names[] = {nameOf(files.base, "base"), nameOf(files.ours, "ours"),
                             nameOf(files.theirs, "theirs")};
    const auto refuse = [&files](const QString &name, const qxDocumentFile &file) {
        return fail((files.label.isEmpty() ? QString() : name + QStringLiteral(": "))
                    + file.errorString());
    };
    const auto load = [&refuse](const QString &path, const QString &name, qxDocumentFile &file,
                                qxDocument &document) {
        if (!file.load(path))
            return refuse(name, file);
        if (!qxEditedDocument::read(name, file.document(), document))
            return false;
        return !isWrongFile(file, document)
            || fail(QStringLiteral("%1: it is no variants document").arg(name));
    };
    if (!load(files.base, names[MergeBase], base, before)
        || !load(files.ours, names[MergeOurs], m_ours, one)
        || !load(files.theirs, names[MergeTheirs], theirs, other))
        return false;
    const bool isBaseOther = !isEmpty(base) && base.isScene() != m_ours.isScene();
    if (m_ours.isScene() != theirs.isScene() || isBaseOther) {
        const QString &ours = names[MergeOurs];
        const QString &third = names[isBaseOther ? MergeBase : MergeTheirs];
        return fail(QStringLiteral("%1: it is a scene, %2 is none")
                        .arg(m_ours.isScene() ? ours : third, m_ours.isScene() ? third : ours));
    }
    if (m_ours.isScene()
        && !m_ours.mergeScene(base, theirs, wanted == qxMergePreference::Theirs, scene))
        return refuse(names[MergeOurs], m_ours);
    variants = qxDocumentMerge::of(before, one, other, wanted);
    // What one side alone has changed stays as it was written.
    if (theirs.document() == base.document() || m_ours.document() == theirs.document())
        m_document = m_ours.document();
    else if (m_ours.document() == base.document())
        m_document = theirs.document();
    else
        m_document = qxDocumentXml::write(variants.document);
    return true;
}

bool qxFileMerge::save(const QString &path)
{
    const bool isSaved = m_ours.save(path, m_document);
    for (const QString &warning : m_ours.warnings())
        qxLog::warning("%s: %s", qxText::toUtf8(path).c_str(), qxText::toUtf8(warning).c_str());
    return isSaved || fail(m_ours.errorString());
}
