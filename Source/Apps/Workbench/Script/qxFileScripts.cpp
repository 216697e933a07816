#include "qxFileScripts.h"

#include "qxVariantSet.h"
#include "qxVariantWriter.h"
#include "qxVariants.h"

#include "Script/qxScriptRunner.h"
#include "qxText.h"

#include <QFileInfo>

namespace {

/// As the interpreter would get it, which ends a text at its first NUL.
std::string textOf(const QString &script)
{
    return qxText::toUtf8(script).c_str();
}

QString noteOn(const QString &file, const QString &set)
{
    return QFileInfo(file).fileName() + QLatin1String(": ") + set;
}

} // namespace

void qxFileScripts::take()
{
    clear();
    for (const qxVariantSet *set : qxVariants::_variantSets) {
        if (!set->script.isEmpty())
            m_texts.insert(textOf(set->script));
    }
    if (!m_texts.empty())
        m_trust = qxTrustStore();
    tellRunner();
}

void qxFileScripts::clear()
{
    m_texts.clear();
    m_decided.clear();
    tellRunner();
}

qxTrustStore::Decision qxFileScripts::decisionOn(const std::string &text) const
{
    const auto decided = m_decided.find(text);
    return decided == m_decided.end() ? m_trust.of(text) : decided->second;
}

void qxFileScripts::tellRunner() const
{
    std::set<std::string> distrusted;
    for (const std::string &text : m_texts) {
        if (decisionOn(text) != qxTrustStore::Trusted)
            distrusted.insert(text);
    }
    qxScriptRunner::setDistrusted(distrusted);
}

QList<qxFileScripts::Script> qxFileScripts::list() const
{
    QList<Script> scripts;
    for (const qxVariantSet *set : qxVariants::_variantSets) {
        const std::string text = textOf(set->script);
        if (m_texts.count(text) > 0)
            scripts << Script{set->name, set->script, decisionOn(text)};
    }
    return scripts;
}

QList<qxFileScripts::Script> qxFileScripts::undecided() const
{
    QList<Script> scripts;
    for (const Script &script : list()) {
        if (script.decision == qxTrustStore::Undecided)
            scripts << script;
    }
    return scripts;
}

QString qxFileScripts::decide(const QList<Script> &scripts, qxTrustStore::Decision decision,
                              const QString &file)
{
    qxTrustStore::Scripts noted;
    for (const Script &script : scripts) {
        const std::string text = textOf(script.text);
        noted.emplace(text, noteOn(file, script.set));
        m_decided[text] = decision;
    }
    tellRunner();
    return qxTrustStore::remember(noted, decision);
}

QString qxFileScripts::rememberOwn(const QString &file) const
{
    bool isUntrusted = false;
    for (const std::string &text : m_texts)
        isUntrusted |= decisionOn(text) != qxTrustStore::Trusted;
    if (isUntrusted && qxScriptRunner::allowed() == qxScriptRunner::Everything)
        return QString();
    const qxTrustStore trust;
    qxTrustStore::Scripts own;
    for (const qxVariantSet *set : qxVariants::_variantSets) {
        // With the file comes what the document holds of the script.
        const std::string text = textOf(qxVariantWriter::writable(set->script));
        if (!text.empty() && m_texts.count(text) == 0 && trust.of(text) == qxTrustStore::Undecided)
            own.emplace(text, noteOn(file, set->name));
    }
    return own.empty() ? QString() : qxTrustStore::remember(own, qxTrustStore::Trusted);
}
