#include "qxRecovery.h"

#include "Registry/qxRegistryEdit.h"
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
    : QObject(window), m_window(window)
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

void qxRecovery::begin(const QString &scene)
{
    m_idle.stop();
    m_record = qxRegistryRecord();
    m_record.update(m_record.changes());
    m_names = qxSceneNames::take();
    m_changedNames = QJsonObject();
    m_file = std::make_unique<qxRecoveryFile>(
        scene.isEmpty() ? QString() : QFileInfo(scene).absoluteFilePath());
}

/// A second step before there was time for the first does not wait: one step is lost at most.
void qxRecovery::keepSoon()
{
    if (m_idle.isActive())
        keep();
    else
        m_idle.start();
}

void qxRecovery::keep()
{
    m_idle.stop();
    const qxRegistryRecord::Changes changes = m_record.changes();
    const QJsonObject names = m_names.changes();
    if (changes.isEmpty() && names == m_changedNames)
        return;
    m_file->append(changes, names);
    m_record.update(changes);
    m_changedNames = names;
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
    m_names.apply(left.apply(document));
    qxRegistryEdit::apply(document);
    Q_EMIT qxPanelChanges::the().sceneRestored();
    keep(); // before the other file goes
    left.discard();
}
