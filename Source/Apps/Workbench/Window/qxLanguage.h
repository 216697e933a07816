#pragma once

#include <QStringList>

#include <memory>
#include <vector>

class QTranslator;

/// The language of the interface: the translations of this program and of Qt, in use while this
/// lives. The choice is remembered in the settings of the program.
///
/// Formats of numbers, dates and files do not depend on it.
class qxLanguage {
public:
    /// Takes the language that was chosen last, or else that of the system.
    qxLanguage();
    ~qxLanguage();

    /// The available codes, such as "de"; an empty one means the system's language.
    static QStringList codes();
    /// The name of a language in that language.
    static QString nameOf(const QString &code);

    QString chosen() const;
    /// Changes every text that is shown, as soon as events are processed.
    void choose(const QString &code);

private:
    void install();
    void load(const QString &catalogue, const QString &folder, const QString &code);

    std::vector<std::unique_ptr<QTranslator>> m_translators;
};
