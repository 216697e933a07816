#include "Session/qxFileMerge.h"

#include "Report/qxOutput.h"
#include "Session/qxEditedDocument.h"
#include "qxDocumentXml.h"
#include "qxLog.h"
#include "qxText.h"

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

} // namespace

bool qxFileMerge::merge(const Files &files, qxMergePreference wanted)
{
    preference = wanted;
    qxDocumentFile base, theirs;
    qxDocument before, one, other;
    const auto load = [](const QString &path, qxDocumentFile &file, qxDocument &document) {
        if (!file.load(path))
            return fail(file.errorString());
        return qxEditedDocument::read(path, file.document(), document);
    };
    if (!load(files.base, base, before) || !load(files.ours, m_ours, one)
        || !load(files.theirs, theirs, other))
        return false;
    const bool isBaseOther = !isEmpty(base) && base.isScene() != m_ours.isScene();
    if (m_ours.isScene() != theirs.isScene() || isBaseOther)
        return fail(QStringLiteral("%1: it is %2 scene, %3 is %4")
                        .arg(isBaseOther ? files.base : files.theirs,
                             m_ours.isScene() ? QStringLiteral("no") : QStringLiteral("a"),
                             files.ours,
                             m_ours.isScene() ? QStringLiteral("one") : QStringLiteral("none")));
    if (m_ours.isScene()
        && !m_ours.mergeScene(base, theirs, wanted == qxMergePreference::Theirs, scene))
        return fail(m_ours.errorString());
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
