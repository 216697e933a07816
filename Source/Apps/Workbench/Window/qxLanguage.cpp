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

/// In use as long as it lives; null for one that there is not.
std::unique_ptr<QTranslator> installed(const QString &catalogue, const QString &folder)
{
    auto translator = std::make_unique<QTranslator>();
    const bool isThere = translator->load(catalogue, folder)
        && QCoreApplication::installTranslator(translator.get());
    return isThere ? std::move(translator) : nullptr;
}

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

qxCatalogue::qxCatalogue(const QString &code)
{
    makeCataloguesKnown();
    m_translator =
        installed(QStringLiteral("qxVariants_") + code, QStringLiteral(":/translations"));
}

qxCatalogue::~qxCatalogue() = default;

qxLanguage::qxLanguage()
{
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

// Without Qt's own catalogue the standard buttons stay English.
void qxLanguage::install()
{
    m_ofQt.reset();
    m_own.reset();
    const QString code = chosen().isEmpty() ? systemCode() : chosen();
    m_own = std::make_unique<qxCatalogue>(code);
    m_ofQt = installed(QStringLiteral("qtbase_") + code,
                       QLibraryInfo::location(QLibraryInfo::TranslationsPath));
}
