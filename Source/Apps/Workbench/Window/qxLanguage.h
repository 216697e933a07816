#pragma once

#include <QStringList>

#include <memory>

class QTranslator;

/// The texts of this program in one language, in use while this lives: before those of other
/// catalogues that were in use already.
class qxCatalogue {
public:
    /// A code such as "de"; texts stay as they were where there is no catalogue of that language.
    explicit qxCatalogue(const QString &code);
    qxCatalogue(const qxCatalogue &) = delete;
    ~qxCatalogue();

private:
    std::unique_ptr<QTranslator> m_translator;
};

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

    std::unique_ptr<qxCatalogue> m_own;
    std::unique_ptr<QTranslator> m_ofQt;
};
