#include "qxLightMenu.h"

#include "Render/qxViewSettings.h"
#include "qxController.h"

#include <QActionGroup>
#include <QColorDialog>
#include <QEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QLocale>
#include <QMessageBox>
#include <QSettings>
#include <QTextDocument>

#include <cmath>

namespace {

const QString recentPicturesKey = QStringLiteral("light/recentPictures");
const QString exposureKey = QStringLiteral("light/exposure");
const QString backgroundKey = QStringLiteral("light/background");
const QString colourKey = QStringLiteral("light/colour");
const QString groundKey = QStringLiteral("light/ground");
const int mostRecentPictures = 6;
const float exposureStep = 0.5f;
const float mostExposure = 10.0f;

void showNow()
{
    qxController::updateRender(true);
}

QColor colourOf(const osg::Color3f &colour)
{
    return QColor::fromRgbF(double(colour[0]), double(colour[1]), double(colour[2]));
}

} // namespace

qxLightMenu::qxLightMenu(QWidget *parent)
    : QMenu(parent), m_environment(new QMenu(this)), m_background(new QMenu(this)),
      m_environments(new QActionGroup(this)), m_backgrounds(new QActionGroup(this))
{
    buildEnvironment();
    buildBackground();
    buildExposure();
    restore();
    retranslate();
}

QAction *qxLightMenu::named(QAction *action, const char *text)
{
    m_texts.append({action, text});
    return action;
}

QAction *qxLightMenu::choice(QActionGroup *group, const char *text)
{
    QAction *const action = named(group->addAction(QString()), text);
    action->setCheckable(true);
    return action;
}

void qxLightMenu::buildEnvironment()
{
    named(addMenu(m_environment), QT_TR_NOOP("&Environment"));
    QAction *const ofScene = choice(m_environments, QT_TR_NOOP("&Of the Scene"));
    ofScene->setChecked(true);
    connect(ofScene, &QAction::triggered, this, [this] { use(OfScene); });
    connect(choice(m_environments, QT_TR_NOOP("&Studio")), &QAction::triggered, this,
            [this] { use(Studio); });
    m_environment->addActions(m_environments->actions());
    m_environment->addSeparator();
    m_picture = named(m_environment->addAction(QString()), QT_TR_NOOP("&Picture..."));
    connect(m_picture, &QAction::triggered, this, &qxLightMenu::askForPicture);
    connect(m_environment, &QMenu::aboutToShow, this, &qxLightMenu::fillRecent);
}

void qxLightMenu::buildBackground()
{
    named(addMenu(m_background), QT_TR_NOOP("&Background"));
    const QList<QPair<const char *, int>> choices{
        {QT_TR_NOOP("&Automatic"), qxViewSettings::Automatic},
        {QT_TR_NOOP("&Environment"), qxViewSettings::Environment},
        {QT_TR_NOOP("&Gradient"), qxViewSettings::Gradient},
        {QT_TR_NOOP("&Plain Colour..."), qxViewSettings::Plain}};
    for (const auto &each : choices) {
        QAction *const action = choice(m_backgrounds, each.first);
        action->setData(each.second);
        connect(action, &QAction::triggered, this, [this, action] {
            if (action->data() != qxViewSettings::Plain || askForColour())
                setBackground(action->data().toInt());
            else
                checkBackground(qxViewSettings::the().background);
        });
    }
    m_background->addActions(m_backgrounds->actions());
    m_ground = named(addAction(QString()), QT_TR_NOOP("&Ground for Shadows"));
    m_ground->setCheckable(true);
    connect(m_ground, &QAction::toggled, this, [](bool on) {
        qxViewSettings::the().ground =
            on ? qxViewSettings::GroundWhereMissing : qxViewSettings::NoGround;
        QSettings().setValue(groundKey, on);
        showNow();
    });
}

void qxLightMenu::buildExposure()
{
    addSeparator();
    const auto change = [this](float step) { setExposure(qxViewSettings::the().exposure + step); };
    named(addAction(
              QString(), this, [change] { change(exposureStep); },
              QKeySequence(Qt::CTRL + Qt::Key_Period)),
          QT_TR_NOOP("B&righter"));
    named(addAction(
              QString(), this, [change] { change(-exposureStep); },
              QKeySequence(Qt::CTRL + Qt::Key_Comma)),
          QT_TR_NOOP("&Darker"));
    m_normal = addAction(QString(), this, [this] { setExposure(0.0f); });
}

/// What was chosen the last time. A file may have other contents since, or be gone.
void qxLightMenu::restore()
{
    const QSettings settings;
    qxViewSettings &view = qxViewSettings::the();
    const QColor colour(settings.value(colourKey).toString());
    if (colour.isValid())
        view.plainColour =
            osg::Color3f(float(colour.redF()), float(colour.greenF()), float(colour.blueF()));
    const int wanted = settings.value(backgroundKey, int(view.background)).toInt();
    if (checkBackground(wanted))
        view.background = qxViewSettings::Background(wanted);
    bool isNumber = false;
    const float exposure = settings.value(exposureKey).toFloat(&isNumber);
    if (isNumber && std::fabs(exposure) <= mostExposure)
        view.exposure = exposure;
    view.ground = settings.value(groundKey, true).toBool() ? qxViewSettings::GroundWhereMissing
                                                           : qxViewSettings::NoGround;
    m_ground->setChecked(view.ground == qxViewSettings::GroundWhereMissing);
}

void qxLightMenu::changeEvent(QEvent *event)
{
    QMenu::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

void qxLightMenu::retranslate()
{
    for (const auto &action : m_texts)
        action.first->setText(tr(action.second));
    const float exposure = qxViewSettings::the().exposure;
    m_normal->setText(tr("&Normal (Exposure %1)")
                          .arg(QLatin1Char(exposure < 0.0f ? '-' : '+')
                               + QLocale().toString(double(std::fabs(exposure)), 'f', 1)));
}

void qxLightMenu::fillRecent()
{
    qDeleteAll(m_recent);
    m_recent.clear();
    m_environment->setToolTipsVisible(true);
    for (const QString &file : QSettings().value(recentPicturesKey).toStringList()) {
        QString name = QFileInfo(file).fileName();
        name.replace(QLatin1Char('&'), QLatin1String("&&"));
        auto *const action = new QAction(name, m_environments);
        action->setCheckable(true);
        action->setData(file);
        action->setChecked(file == m_file);
        action->setEnabled(QFileInfo::exists(file));
        action->setToolTip(Qt::convertFromPlainText(file, Qt::WhiteSpaceNormal));
        connect(action, &QAction::triggered, this, [this, file] { usePicture(file); });
        m_environment->insertAction(m_picture, action);
        m_recent << action;
    }
}

void qxLightMenu::use(Environment environment)
{
    m_file.clear();
    qxViewSettings::the().environment = environment == Studio ? qxViewSettings::studio() : nullptr;
    m_environments->actions().at(environment)->setChecked(true);
    showNow();
}

/// Marks what is in use, after another choice came to nothing.
void qxLightMenu::checkEnvironment()
{
    const int own = qxViewSettings::the().environment ? Studio : OfScene;
    QAction *const plain = m_environments->actions().at(own);
    QAction *chosen = m_file.isEmpty() ? plain : nullptr;
    for (QAction *each : m_recent) {
        if (each->data() == m_file)
            chosen = each;
    }
    if (chosen)
        chosen->setChecked(true);
    else if (QAction *const checked = m_environments->checkedAction())
        checked->setChecked(false);
}

void qxLightMenu::usePicture(const QString &file)
{
    QString error;
    const auto light = qxViewSettings::readEnvironment(file, error);
    if (!light) {
        QMessageBox box(QMessageBox::Warning, tr("Workbench"),
                        tr("\"%1\" cannot be opened.").arg(QFileInfo(file).fileName()),
                        QMessageBox::Ok, this);
        box.setInformativeText(error);
        for (QLabel *label : box.findChildren<QLabel *>()) // names of files are no markup
            label->setTextFormat(Qt::PlainText);
        box.exec();
        checkEnvironment();
        return;
    }
    qxViewSettings::the().environment = light;
    m_file = QFileInfo(file).absoluteFilePath();
    if (QAction *const checked = m_environments->checkedAction())
        checked->setChecked(m_recent.contains(checked));
    QSettings settings;
    QStringList files = settings.value(recentPicturesKey).toStringList();
    files.removeAll(m_file);
    files.prepend(m_file);
    settings.setValue(recentPicturesKey, QStringList(files.mid(0, mostRecentPictures)));
    showNow();
}

void qxLightMenu::askForPicture()
{
    const QString file =
        QFileDialog::getOpenFileName(this, tr("Environment"), QFileInfo(m_file).path(),
                                     tr("Pictures of all directions (*.hdr *.pic *.exr)"));
    if (!file.isEmpty())
        usePicture(file);
}

/// False when it was cancelled.
bool qxLightMenu::askForColour()
{
    osg::Color3f &plain = qxViewSettings::the().plainColour;
    const QColor colour = QColorDialog::getColor(colourOf(plain), this, tr("Background"));
    if (!colour.isValid())
        return false;
    plain = osg::Color3f(float(colour.redF()), float(colour.greenF()), float(colour.blueF()));
    QSettings().setValue(colourKey, colour.name());
    return true;
}

/// Marks a background as the chosen one; false when there is no such background.
bool qxLightMenu::checkBackground(int background)
{
    for (QAction *each : m_backgrounds->actions()) {
        if (each->data() != background)
            continue;
        each->setChecked(true);
        return true;
    }
    return false;
}

void qxLightMenu::setBackground(int background)
{
    qxViewSettings::the().background = qxViewSettings::Background(background);
    QSettings().setValue(backgroundKey, background);
    showNow();
}

void qxLightMenu::setExposure(float exposure)
{
    qxViewSettings::the().exposure = std::clamp(exposure, -mostExposure, mostExposure);
    QSettings().setValue(exposureKey, double(qxViewSettings::the().exposure));
    retranslate();
    showNow();
}
