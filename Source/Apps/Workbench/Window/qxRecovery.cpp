#include "qxRecovery.h"

#include "Registry/qxRegistryEdit.h"
#include "qxLog.h"
#include "qxPanelChanges.h"
#include "qxPanelEvents.h"
#include "qxRegistryDocument.h"

#include <QFileInfo>
#include <QLabel>
#include <QLocale>
#include <QMessageBox>
#include <QPushButton>
#include <QUndoStack>

qxRecovery::qxRecovery(const QUndoStack *steps, qxPanelEvents *events, QWidget *window)
    : QObject(window), m_steps(steps), m_window(window)
{
    m_idle.setSingleShot(true);
    m_idle.setInterval(0);
    connect(&m_idle, &QTimer::timeout, this, &qxRecovery::keep);
    connect(steps, &QUndoStack::indexChanged, this, &qxRecovery::keepSoon);
    for (const auto changed : {&qxPanelEvents::setsChanged, &qxPanelEvents::variantsChanged})
        connect(events, changed, &m_idle, QOverload<>::of(&QTimer::start));
    connect(events, &qxPanelEvents::aboutToForget, this, [this] {
        m_idle.stop();
        m_names = qxSceneNames();
    });
    begin(QString());
}

qxRecovery::~qxRecovery()
{
    if (m_taken)
        m_taken->discard();
}

void qxRecovery::begin(const QString &scene)
{
    m_idle.stop();
    m_record = qxRegistryRecord();
    m_record.update(m_record.changes());
    m_ofFile = m_record;
    m_names = qxSceneNames::take();
    m_changedNames = QJsonObject();
    m_file = std::make_unique<qxRecoveryFile>(
        scene.isEmpty() ? QString() : QFileInfo(scene).absoluteFilePath(), m_ofFile.order());
    if (m_taken)
        m_taken->discard();
    m_taken.reset();
}

/// A second step before there was time for the first does not wait: one step is lost at most.
void qxRecovery::keepSoon()
{
    if (m_idle.isActive())
        keep();
    else
        m_idle.start();
}

bool qxRecovery::keep()
{
    m_idle.stop();
    const qxRegistryRecord::Changes changes = m_record.changes();
    const QJsonObject names = m_names.changes();
    if (changes.isEmpty() && names == m_changedNames)
        return true;
    // While edits can be undone nothing needs to be compared with the file.
    if (names.isEmpty() && m_steps->isClean() && m_ofFile.changes().isEmpty()) {
        m_file->clear();
        m_record = m_ofFile;
        m_changedNames = names;
        return true;
    }
    const bool isKept = m_file->append(changes, names);
    m_record.update(changes);
    m_changedNames = names;
    return isKept;
}

void qxRecovery::offerAll()
{
    for (const qxRecoveryFile::Left &left : qxRecoveryFile::left())
        ask(left);
}

void qxRecovery::offer(const QString &scene)
{
    const QString whole = QFileInfo(scene).absoluteFilePath();
    for (const qxRecoveryFile::Left &left : qxRecoveryFile::left()) {
        if (left.scene == whole)
            return ask(left);
    }
}

void qxRecovery::ask(const qxRecoveryFile::Left &left)
{
    if (m_asked.contains(left.path))
        return;
    m_asked += left.path;
    const QString name = QFileInfo(left.scene).fileName();
    const QString time = QLocale().toString(left.time, QLocale::ShortFormat);
    QMessageBox box(
        QMessageBox::Question, tr("Workbench"),
        name.isEmpty() ? tr("The program ended unexpectedly on %1: edits were not saved.").arg(time)
                       : tr("The program ended unexpectedly on %1: edits of \"%2\" were not saved.")
                             .arg(time, name),
        QMessageBox::NoButton, m_window);
    box.setInformativeText(tr("%n steps can be recovered. The file stays as it is until you save.",
                              nullptr, left.steps));
    QPushButton *const recover = box.addButton(tr("Recover"), QMessageBox::AcceptRole);
    const QPushButton *const discard = box.addButton(tr("Discard"), QMessageBox::DestructiveRole);
    box.setEscapeButton(box.addButton(tr("Not Now"), QMessageBox::RejectRole));
    box.setDefaultButton(recover);
    for (QLabel *label : box.findChildren<QLabel *>())
        label->setTextFormat(Qt::PlainText); // Names of files are no markup.
    box.exec();
    if (box.clickedButton() == recover)
        Q_EMIT recoverWanted(left);
    else if (box.clickedButton() == discard)
        left.discard();
}

void qxRecovery::recover(const qxRecoveryFile::Left &left)
{
    qxDocument document = qxRegistryDocument::current();
    document.settle();
    if (!m_names.apply(left.apply(document)))
        qxLog::warning("The file has other nodes or materials than when these edits were made: "
                       "names and materials that they changed there are left alone.");
    qxRegistryEdit::apply(document);
    Q_EMIT qxPanelChanges::the().sceneRestored();
    if (keep()) // before the other file goes
        left.discard();
    else
        m_taken = std::make_unique<qxRecoveryFile::Left>(left);
}
