#include "qxSession.h"

#include "qxMaterialVariant.h"
#include "qxVariantGroup.h"
#include "qxVariantKinds.h"
#include "qxVariantReader.h"
#include "qxVariantSet.h"
#include "qxVariantWriter.h"
#include "qxVariants.h"

#include "Files/qxDocumentFile.h"
#include "Report/qxOutput.h"
#include "qxLog.h"
#include "qxNames.h"
#include "qxPreviewMarks.h"

#include <OpenSG/OSGSwitchMaterial.h>

#include <QCoreApplication>
#include <QScopeGuard>

namespace {

/// The variant of that switch material. Its default is the material that the file was made with,
/// which need not be the one that it shows now. Null when there is no such switch material.
qxMaterialVariant *materialVariant(const QString &name)
{
    if (qxMaterialVariant *known = qxVariants::findMaterialVariant(name))
        return known;
    osg::SwitchMaterialPtr choices; // a file may call a plain material like it
    for (const osg::MaterialPtr &each : qxNames::findMaterials(name)) {
        if (choices == osg::NullFC)
            choices = osg::SwitchMaterialPtr::dcast(each);
    }
    qxMaterialVariant *const variant =
        choices == osg::NullFC ? nullptr : qxVariants::createMaterialVariant(choices, true);
    if (variant && !choices->getMFMaterials()->empty())
        variant->defaultState = qxNames::nameOf(choices->getMaterial(0));
    return variant;
}

void logWarnings(const qxSceneFile &file)
{
    for (const QString &warning : file.warnings())
        qxLog::warning("%s", qxText::toUtf8(warning).c_str());
}

} // namespace

qxSession::qxSession(bool trace)
{
    if (trace)
        m_trace = std::make_unique<qxTrace>();
}

qxSession::~qxSession()
{
    m_stray.emplace(strayPlace());
}

bool qxSession::open(const QString &path, const qxSceneFile::StepListener &listener)
{
    if (!openScene(path, listener))
        return false;
    if (!m_file->variantsDocument().isEmpty())
        return readDocument(m_file->variantsDocument());
    importVariants();
    return true;
}

void qxSession::importVariants()
{
    if (m_file->materialVariants().empty())
        return;
    qxVariantGroup *const group = qxVariants::createVariantGroup(
        qxVariants::getUniqueVariantGroupName(QStringLiteral("Material Variants")), true, true);
    for (const qxSceneVariant &variant : m_file->materialVariants()) {
        // The names are unique, and there is nothing yet that could have one of them.
        qxVariantSet *const set = qxVariants::createVariantSet(variant.name, true, group);
        for (const QPair<QString, QString> &choice : variant.materials)
            set->add(materialVariant(choice.first), choice.second); // which may be null
    }
    m_imported = qxVariantWriter().writeToCompare();
}

void qxSession::close()
{
    m_failure.clear();
    m_imported.clear();
    m_host.clearScene();
    m_scripts.clear();
    m_file = std::make_unique<qxSceneFile>();
}

bool qxSession::openScene(const QString &path, const qxSceneFile::StepListener &listener)
{
    m_failure.clear();
    const auto step = [&](qxSceneFile::Step next) {
        listener(next);
        if (next != qxSceneFile::Showing)
            return;
        m_imported.clear();
        m_host.clearScene();
        m_scripts.clear();
    };
    if (m_file->load(path, step)) {
        logWarnings(*m_file);
        return true;
    }
    return fail(m_file->errorString());
}

bool qxSession::hasRoomFor(const QByteArray &xml)
{
    return m_file->hasRoomFor(xml) || fail(m_file->errorString());
}

bool qxSession::readDocument(const QByteArray &xml)
{
    if (!hasRoomFor(xml))
        return false;
    const QString flaw = qxDocumentFile::flawOf(xml);
    if (!flaw.isEmpty()) {
        return fail(
            QCoreApplication::translate("qxSession", "the variants document cannot be read: %1")
                .arg(flaw));
    }
    bool isRead = false;
    {
        const qxCaughtOutput stray(strayPlace()); // it says what is in short previews
        qxVariantReader reader;
        reader.read(xml.constData());
        isRead = reader.isRead();
    }
    takeScripts();
    if (isRead)
        return true;
    return fail(QCoreApplication::translate("qxSession", "the variants document cannot be read"));
}

qxCaughtOutput::Place qxSession::strayPlace() const
{
    return m_trace ? qxCaughtOutput::ToErrors : qxCaughtOutput::Nowhere;
}

/// Until somebody has said that they may, the file's scripts do not run.
void qxSession::takeScripts()
{
    m_scripts.take();
    if (!m_scripts.flaw().isEmpty())
        qxLog::warning("No script of the file is trusted: %s",
                       qxText::toUtf8(m_scripts.flaw()).c_str());
}

void qxSession::rememberScripts(const QString &path)
{
    const QString reason = m_scripts.rememberOwn(path);
    if (!reason.isEmpty())
        qxLog::warning("The scripts saved to %s will have to be trusted when it is opened: %s",
                       qxText::toUtf8(path).c_str(), qxText::toUtf8(reason).c_str());
}

bool qxSession::fail(const QString &reason)
{
    m_failure = reason;
    qxOutput::error(reason);
    return false;
}

bool qxSession::isEmpty() const
{
    return qxVariantKinds::count() == 0 && qxVariants::_variantSets.empty()
        && qxVariants::_variantGroups.empty();
}

bool qxSession::save(const QString &path)
{
    return save(path, PreviewFiles());
}

bool qxSession::save(const QString &path, const PreviewFiles &previews)
{
    m_failure.clear();
    const qxPreviewMarks marks(previews);
    const auto unmark = qScopeGuard([&, before = m_file->variantsDocument()] {
        if (!marks.files().isEmpty())
            m_file->setVariantsDocument(before);
    });
    if (!isEmpty() || !m_file->variantsDocument().isEmpty()) {
        const QByteArray document = qxVariantWriter().write();
        if (document != m_imported)
            m_file->setVariantsDocument(document);
    }
    if (m_file->save(path, marks.files())) {
        rememberScripts(path);
        logWarnings(*m_file);
        return true;
    }
    return fail(m_file->errorString());
}
