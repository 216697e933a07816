#include "qxTheme.h"

#include <QApplication>
#include <QPainter>
#include <QProxyStyle>
#include <QSettings>
#include <QStyle>
#include <QStyleFactory>
#include <QStyleOption>

#include <memory>

namespace {

const char *const themeKey = "window/theme";
const char *const plainStyle = "Fusion";

struct RoleColour {
    QPalette::ColorRole role;
    QRgb active;
    QRgb disabled;
};

const RoleColour darkColours[] = {
    {QPalette::Window, 0x2d2f33, 0x2d2f33},
    {QPalette::WindowText, 0xe8e8e8, 0x85878b},
    {QPalette::Base, 0x1f2124, 0x26282b},
    {QPalette::AlternateBase, 0x282a2e, 0x282a2e},
    {QPalette::Text, 0xe8e8e8, 0x85878b},
    {QPalette::PlaceholderText, 0xa0a3a8, 0x85878b},
    {QPalette::Button, 0x3a3d42, 0x33363a},
    {QPalette::ButtonText, 0xe8e8e8, 0x85878b},
    {QPalette::BrightText, 0xff8a80, 0xff8a80},
    {QPalette::ToolTipBase, 0x3f4248, 0x3f4248},
    {QPalette::ToolTipText, 0xf0f0f0, 0xf0f0f0},
    {QPalette::Highlight, 0x2a6db5, 0x45494f},
    {QPalette::HighlightedText, 0xffffff, 0xb0b0b0},
    {QPalette::Link, 0x7ab8ff, 0x85878b},
    {QPalette::LinkVisited, 0xc49bff, 0x85878b},
    {QPalette::Light, 0x52565c, 0x52565c},
    {QPalette::Midlight, 0x464a50, 0x464a50},
    {QPalette::Mid, 0x24262a, 0x24262a},
    {QPalette::Dark, 0x1a1c1f, 0x1a1c1f},
    {QPalette::Shadow, 0x0e0f10, 0x0e0f10},
};

/// Draws everything in the colours of the palette; pictures on buttons have their own, which may be
/// dark on dark.
class ThemeStyle : public QProxyStyle {
public:
    ThemeStyle() : QProxyStyle(QString::fromLatin1(plainStyle)) {}

    /// The frame is darker than the window, and so not seen where that is dark.
    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override
    {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        const bool isDark = option->palette.color(QPalette::Base).lightness() < 128;
        if (element != PE_IndicatorCheckBox || !isDark)
            return;
        painter->save();
        painter->setPen(option->palette.color(QPalette::Disabled, QPalette::Text));
        painter->setBrush(Qt::NoBrush);
        painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
        painter->restore();
    }

    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *result) const override
    {
        return hint == SH_DialogButtonBox_ButtonsHaveIcons
            ? 0
            : QProxyStyle::styleHint(hint, option, widget, result);
    }
};

} // namespace

qxTheme::qxTheme() : m_systemStyle(QApplication::style()->objectName())
{
    if (chosen() != System)
        apply();
}

qxTheme::Choice qxTheme::chosen()
{
    const int choice = QSettings().value(themeKey).toInt();
    return choice == Light || choice == Dark ? Choice(choice) : System;
}

void qxTheme::choose(Choice choice)
{
    QSettings().setValue(themeKey, int(choice));
    apply();
}

void qxTheme::apply() const
{
    const Choice choice = chosen();
    if (choice == System) {
        QApplication::setStyle(m_systemStyle);
        QApplication::setPalette(QPalette()); // The desktop's again, also when it changes.
        return;
    }
    QApplication::setStyle(new ThemeStyle);
    QApplication::setPalette(choice == Dark ? darkPalette() : lightPalette());
}

QPalette qxTheme::lightPalette()
{
    const std::unique_ptr<QStyle> style(QStyleFactory::create(QString::fromLatin1(plainStyle)));
    return style->standardPalette();
}

QPalette qxTheme::darkPalette()
{
    QPalette palette;
    for (const RoleColour &each : darkColours) {
        palette.setColor(QPalette::All, each.role, QColor(each.active));
        palette.setColor(QPalette::Disabled, each.role, QColor(each.disabled));
    }
    return palette;
}
