#include "qxLanguage.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QSettings>
#include <QTranslator>

namespace {

const char *const languageKey = "window/language";
const char *const english = "en"; ///< what the sources are written in
const char *const german = "de";

/// The first language that the user of this system wants and that there is.
QString systemCode()
{
    for (const QString &wanted : QLocale::system().uiLanguages()) {
        const QString code = wanted.section('-', 0, 0);
        if (!code.isEmpty() && qxLanguage::codes().contains(code))
            return code;
    }
    return english;
}

} // namespace

static void makeCataloguesKnown()
{
    Q_INIT_RESOURCE(translations);
}

qxLanguage::qxLanguage()
{
    makeCataloguesKnown();
    install();
}

qxLanguage::~qxLanguage() = default;

QStringList qxLanguage::codes()
{
    return {QString(), english, german};
}

QString qxLanguage::nameOf(const QString &code)
{
    return code == german ? QStringLiteral("Deutsch") : QStringLiteral("English");
}

QString qxLanguage::chosen() const
{
    const QString code = QSettings().value(languageKey).toString();
    return codes().contains(code) ? code : QString();
}

void qxLanguage::choose(const QString &code)
{
    QSettings().setValue(languageKey, code);
    install();
}

void qxLanguage::install()
{
    m_translators.clear();
    const QString code = chosen().isEmpty() ? systemCode() : chosen();
    load(QStringLiteral("qxVariants_"), QStringLiteral(":/translations"), code);
    load(QStringLiteral("qtbase_"), QLibraryInfo::location(QLibraryInfo::TranslationsPath), code);
}

void qxLanguage::load(const QString &catalogue, const QString &folder, const QString &code)
{
    auto translator = std::make_unique<QTranslator>();
    // Without Qt's own catalogue the standard buttons stay English.
    if (translator->load(catalogue + code, folder)
        && QCoreApplication::installTranslator(translator.get()))
        m_translators.push_back(std::move(translator));
}
