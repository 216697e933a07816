#include "qxPictureOptions.h"

#include "Render/qxTiles.h"
#include "Render/qxViewSettings.h"
#include "Report/qxOutput.h"

#include <QColor>
#include <QCommandLineParser>

#include <cmath>

namespace {

const double MostSteps = 20; ///< of the exposure, in each direction
const int MostThreads = 1024;

bool fail(const char *option, const QString &rule, const QString &value)
{
    qxOutput::error(
        QStringLiteral("--%1 is %2, not \"%3\"").arg(QLatin1String(option), rule, value));
    return false;
}

bool isOneOf(const QCommandLineParser &parser, const char *option, const QStringList &words)
{
    const QString value = parser.value(QLatin1String(option));
    if (!parser.isSet(QLatin1String(option)) || words.contains(value))
        return true;
    return fail(option, words.join(QStringLiteral(" or ")), value);
}

/// Also when it is not given.
bool isNumber(const QCommandLineParser &parser, const char *option, double most)
{
    bool isNumber = false;
    const QString value = parser.value(QLatin1String(option));
    const double number = value.toDouble(&isNumber);
    if (!parser.isSet(QLatin1String(option)) || (isNumber && std::fabs(number) <= most))
        return true;
    return fail(option, QStringLiteral("a number from -%1 to %1").arg(most), value);
}

/// Also when it is not given.
bool isThreads(const QCommandLineParser &parser)
{
    const QString value = parser.value(QStringLiteral("threads"));
    bool isNumber = false;
    const int threads = value.toInt(&isNumber);
    if (!parser.isSet(QStringLiteral("threads"))
        || (isNumber && threads >= 1 && threads <= MostThreads))
        return true;
    return fail("threads", QStringLiteral("a whole number from 1 to %1").arg(MostThreads), value);
}

QColor colourOf(const QString &text)
{
    return text.size() == 7 && text.startsWith(QLatin1Char('#')) ? QColor(text) : QColor();
}

bool isBackground(const QCommandLineParser &parser, qxPictureOptions::Transparency transparency)
{
    const QString value = parser.value(QStringLiteral("background"));
    if (!parser.isSet(QStringLiteral("background")) || colourOf(value).isValid()
        || value == QLatin1String("gradient") || value == QLatin1String("environment"))
        return true;
    if (value != QLatin1String("none"))
        return fail("background",
                    QStringLiteral("gradient, environment, none or a colour such as #ffffff"),
                    value);
    if (transparency == qxPictureOptions::MayBeTransparent)
        return true;
    qxOutput::error(QStringLiteral("--background none: these pictures are opaque"));
    return false;
}

qxViewSettings::Background backgroundOf(const QString &value)
{
    if (value == QLatin1String("none"))
        return qxViewSettings::None;
    if (value == QLatin1String("environment"))
        return qxViewSettings::Environment;
    return value == QLatin1String("gradient") ? qxViewSettings::Gradient : qxViewSettings::Plain;
}

} // namespace

QList<QCommandLineOption> qxPictureOptions::all()
{
    return {
        {QStringLiteral("quality"),
         QStringLiteral("Hard light and jagged edges, or soft shadows, which take longer and are "
                        "the default."),
         QStringLiteral("quick|best")},
        {QStringLiteral("environment"),
         QStringLiteral("The light of this picture of all directions, Radiance or OpenEXR, instead "
                        "of the scene's environment or the studio."),
         QStringLiteral("PICTURE")},
        {QStringLiteral("environment-rotation"),
         QStringLiteral("Turns the environment to the left."), QStringLiteral("DEGREES")},
        {QStringLiteral("exposure"),
         QStringLiteral("Brighter or, below 0, darker; each step doubles the light."),
         QStringLiteral("EV")},
        {QStringLiteral("background"),
         QStringLiteral("What is seen behind the scene: nothing, so that the picture is "
                        "transparent, a colour such as #ffffff, or the environment, which without "
                        "one is a gradient."),
         QStringLiteral("gradient|environment|none|COLOUR")},
        {QStringLiteral("ground"),
         QStringLiteral("Whether an invisible ground shows shadows of the scene; by default where "
                        "it has no floor of its own."),
         QStringLiteral("auto|on|off")},
        {QStringLiteral("threads"),
         QStringLiteral("How many threads draw, by default one for each processor. The pictures "
                        "are the same."),
         QStringLiteral("COUNT")},
    };
}

bool qxPictureOptions::areKnown(const QCommandLineParser &parser, Transparency transparency)
{
    return isOneOf(parser, "quality", {QStringLiteral("quick"), QStringLiteral("best")})
        && isNumber(parser, "environment-rotation", 360) && isNumber(parser, "exposure", MostSteps)
        && isBackground(parser, transparency) && isThreads(parser)
        && isOneOf(parser, "ground",
                   {QStringLiteral("auto"), QStringLiteral("on"), QStringLiteral("off")});
}

bool qxPictureOptions::apply(const QCommandLineParser &parser)
{
    qxViewSettings &view = qxViewSettings::the();
    view.environmentRotation = parser.value(QStringLiteral("environment-rotation")).toFloat();
    view.exposure = parser.value(QStringLiteral("exposure")).toFloat();
    qxProgramThreads() = parser.value(QStringLiteral("threads")).toInt();
    const QString background = parser.value(QStringLiteral("background"));
    if (!background.isEmpty())
        view.background = backgroundOf(background);
    const QColor colour = colourOf(background);
    if (colour.isValid())
        view.plainColour =
            osg::Color3f(float(colour.redF()), float(colour.greenF()), float(colour.blueF()));
    const QString ground = parser.value(QStringLiteral("ground"));
    if (!ground.isEmpty())
        view.ground = ground == QLatin1String("on") ? qxViewSettings::AlwaysGround
            : ground == QLatin1String("off")        ? qxViewSettings::NoGround
                                                    : qxViewSettings::GroundWhereMissing;
    const QString file = parser.value(QStringLiteral("environment"));
    if (file.isEmpty())
        return true;
    QString error;
    view.environment = qxViewSettings::readEnvironment(file, error);
    if (!view.environment)
        qxOutput::error(QStringLiteral("%1: %2").arg(file, error));
    return view.environment != nullptr;
}
