#include "qxStartPage.h"

#include "qxDemo.h"
#include "qxRecentFiles.h"

#include <QAction>
#include <QDateTime>
#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QLabel>
#include <QListWidget>
#include <QLocale>
#include <QMessageBox>
#include <QPainter>
#include <QPushButton>
#include <QStyledItemDelegate>
#include <QTextDocument>
#include <QVBoxLayout>

namespace {

enum FileRole { PathRole = Qt::UserRole, NoteRole, MissingRole };

/// A file in three lines, its name, its folder and a note, beside its picture.
class FileDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &) const override
    {
        const int line = option.fontMetrics.lineSpacing();
        return QSize(20 * option.fontMetrics.averageCharWidth(), 3 * line + 2 * gap(option));
    }

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override
    {
        QStyleOptionViewItem plain = option;
        initStyleOption(&plain, index);
        plain.text.clear();
        plain.icon = QIcon();
        const QWidget *const view = option.widget;
        view->style()->drawControl(QStyle::CE_ItemViewItem, &plain, painter, view);
        painter->save();
        const int space = gap(option);
        QRect place = option.rect.adjusted(space, space, -space, -space);
        paintPicture(painter, takePicturePlace(place, space), plain, index);
        paintLines(painter, place, plain, index);
        painter->restore();
    }

private:
    static int gap(const QStyleOptionViewItem &option) { return option.fontMetrics.height() / 3; }

    static QRect takePicturePlace(QRect &place, int space)
    {
        const QRect picture(place.left(), place.top(), place.height() * 4 / 3, place.height());
        place.setLeft(picture.right() + 2 * space);
        return picture;
    }

    static QColor colour(const QStyleOptionViewItem &option, bool isFaint)
    {
        const bool isSelected = option.state & QStyle::State_Selected;
        QColor text = option.palette.color(isSelected ? QPalette::HighlightedText : QPalette::Text);
        text.setAlphaF(isFaint ? 0.7 : 1.0);
        return text;
    }

    static void paintPicture(QPainter *painter, const QRect &place,
                             const QStyleOptionViewItem &option, const QModelIndex &index)
    {
        const auto picture = index.data(Qt::DecorationRole).value<QPixmap>();
        if (picture.isNull()) {
            QColor ground = colour(option, false);
            ground.setAlphaF(0.08);
            return painter->fillRect(place, ground);
        }
        QRect fitted(QPoint(), picture.size().scaled(place.size(), Qt::KeepAspectRatio));
        fitted.moveCenter(place.center());
        painter->setRenderHint(QPainter::SmoothPixmapTransform);
        painter->drawPixmap(fitted, picture);
    }

    static void paintLines(QPainter *painter, const QRect &place,
                           const QStyleOptionViewItem &option, const QModelIndex &index)
    {
        const int height = option.fontMetrics.lineSpacing();
        QRect line(place.left(), place.top(), place.width(), height);
        const auto write = [&](const QString &text, const QFont &font, Qt::TextElideMode elided) {
            painter->setFont(font);
            painter->drawText(line, Qt::AlignVCenter,
                              QFontMetrics(font).elidedText(text, elided, line.width()));
            line.translate(0, height);
        };
        QFont bold = option.font;
        bold.setBold(true);
        painter->setPen(colour(option, index.data(MissingRole).toBool()));
        write(index.data().toString(), bold, Qt::ElideMiddle);
        painter->setPen(colour(option, true));
        const QString folder = QFileInfo(index.data(PathRole).toString()).path();
        write(QDir::toNativeSeparators(folder), option.font, Qt::ElideMiddle);
        write(index.data(NoteRole).toString(), option.font, Qt::ElideRight);
    }
};

QLabel *makeText()
{
    auto *const label = new QLabel;
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    return label;
}

} // namespace

qxStartPage::qxStartPage(qxRecentFiles *files, QWidget *parent)
    : QWidget(parent), m_files(files), m_title(makeText()), m_about(makeText()),
      m_open(new QPushButton), m_demo(new QPushButton), m_heading(makeText()),
      m_list(new QListWidget), m_openFile(new QAction(this)), m_removeFile(new QAction(this)),
      m_hints(makeText())
{
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::Base);
    buildList();
    auto *const layout = new QHBoxLayout(this);
    layout->addStretch(1);
    layout->addWidget(buildColumn(), 20);
    layout->addStretch(1);
    connect(m_open, &QPushButton::clicked, this, &qxStartPage::openWanted);
    connect(m_demo, &QPushButton::clicked, this, [this] { Q_EMIT fileWanted(qxDemo::scene()); });
    connect(m_files, &qxRecentFiles::changed, this, &qxStartPage::showFiles);
    retranslate();
}

QWidget *qxStartPage::buildColumn()
{
    QFont large = font();
    large.setPointSizeF(large.pointSizeF() * 1.8);
    m_title->setFont(large);
    m_heading->setBuddy(m_list);
    auto *const column = new QWidget;
    column->setMaximumWidth(90 * fontMetrics().averageCharWidth());
    auto *const layout = new QVBoxLayout(column);
    auto *const buttons = new QHBoxLayout;
    buttons->addWidget(m_open);
    buttons->addWidget(m_demo);
    buttons->addStretch(1);
    layout->addStretch(1);
    layout->addWidget(m_title);
    layout->addWidget(m_about);
    layout->addLayout(buttons);
    layout->addSpacing(fontMetrics().height() / 2);
    layout->addWidget(m_heading);
    layout->addWidget(m_list, 20);
    layout->addWidget(m_hints);
    layout->addStretch(1);
    return column;
}

void qxStartPage::buildList()
{
    m_list->setItemDelegate(new FileDelegate(m_list));
    m_list->setUniformItemSizes(true);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setContextMenuPolicy(Qt::ActionsContextMenu);
    m_list->setMinimumHeight(4 * fontMetrics().lineSpacing());
    m_openFile->setShortcuts({Qt::Key_Return, Qt::Key_Enter});
    m_removeFile->setShortcut(QKeySequence::Delete);
    for (QAction *action : {m_openFile, m_removeFile}) {
        action->setShortcutContext(Qt::WidgetShortcut);
        m_list->addAction(action);
    }
    connect(m_list, &QListWidget::itemClicked, this, &qxStartPage::openCurrent);
    connect(m_openFile, &QAction::triggered, this, &qxStartPage::openCurrent);
    connect(m_removeFile, &QAction::triggered, this, &qxStartPage::removeCurrent);
}

void qxStartPage::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

/// Files come and go while another scene is shown.
void qxStartPage::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    showFiles();
}

void qxStartPage::retranslate()
{
    m_title->setText(tr("Workbench"));
    m_about->setText(tr("Shows scenes in many states: which wheels, which paint, which lamps."));
    m_open->setText(tr("Open..."));
    m_demo->setText(tr("Demo"));
    m_demo->setToolTip(tr("Open a configurable roadster"));
    m_heading->setText(tr("Recent files"));
    m_list->setAccessibleName(m_heading->text());
    m_openFile->setText(tr("Open"));
    m_removeFile->setText(tr("Remove from the List"));
    const auto shown = [](QKeySequence::StandardKey key) {
        return QKeySequence(key).toString(QKeySequence::NativeText);
    };
    m_hints->setText(tr("A scene (.gltf, .glb) can be dropped anywhere on this window.\n"
                        "%1 lists all keys, and what the mouse does.")
                         .arg(shown(QKeySequence::HelpContents)));
    showFiles();
}

void qxStartPage::showFiles()
{
    const QString current =
        m_list->currentItem() ? m_list->currentItem()->data(PathRole).toString() : QString();
    m_list->clear();
    for (const QString &path : m_files->paths()) {
        const QFileInfo file(path);
        const QString changed = QLocale().toString(file.lastModified(), QLocale::ShortFormat);
        const QString note = file.exists() ? tr("Changed %1").arg(changed) : tr("Missing");
        auto *const item = new QListWidgetItem(file.fileName(), m_list);
        item->setData(PathRole, path);
        item->setData(NoteRole, note);
        item->setData(MissingRole, !file.exists());
        item->setData(Qt::DecorationRole, m_files->pictureOf(path));
        item->setData(Qt::AccessibleTextRole, QStringList{file.fileName(), path, note}.join(", "));
        item->setToolTip(Qt::convertFromPlainText(path, Qt::WhiteSpaceNormal));
        if (path == current || m_list->count() == 1)
            m_list->setCurrentItem(item);
    }
    m_heading->setVisible(m_list->count() > 0);
    m_list->setVisible(m_list->count() > 0);
    setFocusProxy(m_list->count() > 0 ? static_cast<QWidget *>(m_list) : m_open);
    m_demo->setVisible(!qxDemo::scene().isEmpty());
}

void qxStartPage::openCurrent()
{
    const QListWidgetItem *const item = m_list->currentItem();
    if (!item)
        return;
    const QString path = item->data(PathRole).toString();
    if (QFileInfo::exists(path)) {
        Q_EMIT fileWanted(path);
        return;
    }
    QMessageBox question(QMessageBox::Question, tr("Workbench"),
                         tr("\"%1\" is no longer there.").arg(path), QMessageBox::Cancel, window());
    question.setTextFormat(Qt::PlainText);
    const QPushButton *const remove =
        question.addButton(m_removeFile->text(), QMessageBox::AcceptRole);
    question.exec();
    if (question.clickedButton() == remove)
        m_files->remove(path);
}

void qxStartPage::removeCurrent()
{
    if (const QListWidgetItem *const item = m_list->currentItem())
        m_files->remove(QString(item->data(PathRole).toString()));
}
