#include "qxPictureWish.h"

#include "Render/qxPicture.h"
#include "Session/qxSetPictures.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QPushButton>
#include <QSettings>
#include <QSpinBox>

namespace {

QSpinBox *addSide(QFormLayout *rows, const QString &label, int pixels)
{
    auto *const side = new QSpinBox;
    side->setRange(1, qxSetPictures::longestSide);
    side->setSuffix(qxPictureWish::tr(" pixels"));
    side->setValue(pixels);
    rows->addRow(label, side);
    return side;
}

qxPictureWish lastWish(const QString &key, const QSize &usual)
{
    const QSettings settings;
    const QSize size = settings.value(key + QStringLiteral("/size"), usual).toSize();
    return {size.isEmpty() ? usual : size,
            settings.value(key + QStringLiteral("/best"), true).toBool(),
            settings.value(key + QStringLiteral("/transparent"), false).toBool()};
}

void remember(const QString &key, const qxPictureWish &wish)
{
    QSettings settings;
    settings.setValue(key + QStringLiteral("/size"), wish.size);
    settings.setValue(key + QStringLiteral("/best"), wish.isBest);
    settings.setValue(key + QStringLiteral("/transparent"), wish.isTransparent);
}

} // namespace

int qxPictureWish::quality() const
{
    return isBest ? qxPictureSettings::Best : qxPictureSettings::Quick;
}

std::optional<qxPictureWish> qxPictureWish::ask(const QString &title, const QString &key,
                                                const QSize &usual, Choice choice, QWidget *window)
{
    qxPictureWish wish = lastWish(key, usual);
    QDialog dialog(window);
    dialog.setWindowTitle(title);
    auto *const rows = new QFormLayout(&dialog);
    const QSpinBox *const width = addSide(rows, tr("&Width:"), wish.size.width());
    const QSpinBox *const height = addSide(rows, tr("&Height:"), wish.size.height());
    auto *const quality = new QComboBox;
    quality->addItems(
        {tr("Quick: hard light, jagged edges"), tr("Best: soft shadows, reflections")});
    quality->setCurrentIndex(wish.isBest ? 1 : 0);
    rows->addRow(tr("&Quality:"), quality);
    auto *const transparent = new QCheckBox(tr("&Transparent background (PNG)"), &dialog);
    transparent->setChecked(wish.isTransparent && choice == MayBeTransparent);
    transparent->setVisible(choice == MayBeTransparent);
    if (choice == MayBeTransparent)
        rows->addRow(QString(), transparent);
    auto *const buttons = new QDialogButtonBox(QDialogButtonBox::Save | QDialogButtonBox::Cancel);
    buttons->button(QDialogButtonBox::Save)->setText(tr("&Save..."));
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    rows->addRow(buttons);
    const bool isAccepted = dialog.exec() == QDialog::Accepted;
    wish = {QSize(width->value(), height->value()), quality->currentIndex() == 1,
            transparent->isChecked()};
    if (!isAccepted)
        return std::nullopt;
    remember(key, wish);
    return wish;
}
