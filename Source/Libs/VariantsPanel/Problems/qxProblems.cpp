#include "qxProblems.h"

#include "qxVariantWriter.h"

#include "qxPanelEvents.h"

#include <algorithm>

qxProblems::qxProblems(qxPanelEvents *events, const qxLinter::Compile &compile, QObject *parent)
    : QObject(parent), m_compile(compile)
{
    m_idle.setSingleShot(true);
    m_idle.setInterval(300);
    connect(&m_idle, &QTimer::timeout, this, &qxProblems::update);
    connect(events, &qxPanelEvents::setsChanged, this, &qxProblems::lookAtScene);
    connect(events, &qxPanelEvents::variantsChanged, this, &qxProblems::lookAtScene);
    connect(events, &qxPanelEvents::statesChanged, this, &qxProblems::lookAtScene);
    lookAtScene();
}

qxFindings qxProblems::ofSet(const QString &set) const
{
    qxFindings found;
    std::copy_if(m_all.begin(), m_all.end(), std::back_inserter(found),
                 [&](const qxFinding &each) { return each.place.set == set; });
    return found;
}

qxFindings qxProblems::ofVariant(const qxVariantKind &kind, const QString &variant) const
{
    qxFindings found;
    std::copy_if(m_all.begin(), m_all.end(), std::back_inserter(found), [&](const qxFinding &each) {
        return each.place.sort >= qxFindingPlace::Variant && each.place.kind == &kind
            && each.place.name == variant;
    });
    return found;
}

qxFindings qxProblems::of(const qxFindingPlace &place) const
{
    qxFindings found;
    std::copy_if(m_all.begin(), m_all.end(), std::back_inserter(found),
                 [&](const qxFinding &each) { return each.place == place; });
    return found;
}

QString qxProblems::textOf(const qxFinding &finding)
{
    return finding.message;
}

void qxProblems::update()
{
    m_idle.stop();
    m_all = qxLinter::lint(qxVariantWriter().write(), m_compile);
    Q_EMIT changed();
}

void qxProblems::lookAtScene()
{
    m_idle.start();
}
