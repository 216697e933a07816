#include "qxCaptureDialog.h"

#include "qxVariantGroup.h"
#include "qxVariants.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

struct Flag {
    const char *text;
    bool qxCaptureChoice::*value;
};

const Flag flags[] = {
    {QT_TRANSLATE_NOOP("qxCaptureDialog", "&Nodes: switches and what is hidden"),
     &qxCaptureChoice::nodes},
    {QT_TRANSLATE_NOOP("qxCaptureDialog", "&Materials"), &qxCaptureChoice::materials},
    {QT_TRANSLATE_NOOP("qxCaptureDialog", "&Lights"), &qxCaptureChoice::lights},
    {QT_TRANSLATE_NOOP("qxCaptureDialog", "&Environment"), &qxCaptureChoice::environment},
    {QT_TRANSLATE_NOOP("qxCaptureDialog", "&Viewpoint"), &qxCaptureChoice::viewpoint},
    {QT_TRANSLATE_NOOP("qxCaptureDialog", "&Transforms"), &qxCaptureChoice::transforms},
};

} // namespace

qxCaptureDialog::qxCaptureDialog(const qxCaptureChoice &proposal, bool isUpdate, QWidget *parent)
    : QDialog(parent), m_proposal(proposal), m_name(new QLineEdit(proposal.name)),
      m_taken(new QLabel), m_group(new QComboBox)
{
    setWindowTitle(isUpdate ? tr("Update \"%1\" from the scene").arg(proposal.name)
                            : tr("Capture the scene"));
    auto *const layout = new QVBoxLayout(this);
    buildNames(isUpdate);
    auto *const kinds = new QGroupBox(tr("What is captured"));
    auto *const boxes = new QVBoxLayout(kinds);
    for (const Flag &flag : flags) {
        auto *const box = new QCheckBox(tr(flag.text));
        box->setChecked(proposal.*flag.value);
        connect(box, &QCheckBox::toggled, this, &qxCaptureDialog::allowAccept);
        boxes->addWidget(box);
        m_flags.append({box, flag.value});
    }
    layout->addWidget(kinds);
    auto *const buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    m_accept =
        buttons->addButton(isUpdate ? tr("Update") : tr("Capture"), QDialogButtonBox::AcceptRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons);
    m_accept->setDefault(true); // Only a button that is in its dialog can be that.
    m_name->selectAll();
    setMinimumWidth(50 * fontMetrics().averageCharWidth()); // Its title is longer than its fields.
    allowAccept();
}

void qxCaptureDialog::buildNames(bool isUpdate)
{
    auto *const names = new QFormLayout;
    names->addRow(tr("Na&me"), m_name);
    names->addRow(m_taken);
    names->addRow(tr("&Group"), m_group);
    static_cast<QVBoxLayout *>(layout())->addLayout(names);
    m_taken->setObjectName(QStringLiteral("taken"));
    m_taken->setTextFormat(Qt::PlainText);
    m_taken->setWordWrap(true);
    m_taken->hide();
    m_group->setEditable(true); // A group that is not there yet is made.
    for (const qxVariantGroup *group : qxVariants::_variantGroups) {
        if (group->visible)
            m_group->addItem(group->name);
    }
    m_group->setCurrentText(m_proposal.group);
    for (QWidget *field : {static_cast<QWidget *>(m_name), static_cast<QWidget *>(m_group)}) {
        field->setVisible(!isUpdate);
        names->labelForField(field)->setVisible(!isUpdate);
    }
    connect(m_name, &QLineEdit::textChanged, this, &qxCaptureDialog::allowAccept);
    if (!isUpdate)
        connect(m_name, &QLineEdit::textChanged, this, &qxCaptureDialog::showTaken);
}

void qxCaptureDialog::showTaken(const QString &name)
{
    const QString free = qxVariants::getUniqueVariantSetName(name);
    m_taken->setText(tr("\"%1\" exists; the new set will be \"%2\".").arg(name, free));
    m_taken->setVisible(free != name);
}

void qxCaptureDialog::allowAccept()
{
    bool isAnyChosen = false;
    for (const auto &flag : m_flags)
        isAnyChosen |= flag.first->isChecked();
    m_accept->setEnabled(isAnyChosen && !m_name->text().trimmed().isEmpty());
}

qxCaptureChoice qxCaptureDialog::choice() const
{
    qxCaptureChoice choice;
    choice.name = m_name->text();
    choice.group = m_group->currentText().trimmed();
    for (const auto &flag : m_flags)
        choice.*flag.second = flag.first->isChecked();
    return choice;
}
