#pragma once

#include <QPalette>
#include <QString>

/// The colours of the interface: those of the desktop, light or dark ones. The choice is remembered
/// in the settings of the program.
class qxTheme {
public:
    enum Choice { System, Light, Dark };

    /// Takes the theme that was chosen last, or else that of the desktop.
    qxTheme();

    static Choice chosen();
    /// Changes the colours of everything that is shown.
    void choose(Choice choice);

    /// The colours of that theme, whatever the desktop has.
    static QPalette lightPalette();
    static QPalette darkPalette();

private:
    void apply() const;

    QString m_systemStyle; ///< the name of the desktop's own style
};
