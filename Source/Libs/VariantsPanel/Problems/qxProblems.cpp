#include "qxProblems.h"

#include "qxPanelEvents.h"
#include "qxProblemWords.h"
#include "qxRegistryLint.h"

#include <algorithm>
#include <climits>

namespace {

constexpr int Pause = 50; ///< milliseconds after an edit, which is to be shown first
constexpr int Slice = 8; ///< milliseconds; what users do meanwhile waits for no longer

} // namespace

qxProblems::qxProblems(qxPanelEvents *events, const qxLinter::Compile &compile, QObject *parent)
    : QObject(parent), m_lint(std::make_unique<qxRegistryLint>(compile))
{
    m_soon.setSingleShot(true);
    m_soon.setInterval(Pause);
    connect(&m_soon, &QTimer::timeout, &m_idle, QOverload<>::of(&QTimer::start));
    connect(&m_idle, &QTimer::timeout, this, &qxProblems::goOn);
    connect(events, &qxPanelEvents::setsChanged, this, &qxProblems::lookAgain);
    connect(events, &qxPanelEvents::variantsChanged, this, &qxProblems::lookAtScene);
    connect(events, &qxPanelEvents::statesChanged, this, &qxProblems::lookAtScene);
    m_soon.start();
}

qxProblems::~qxProblems() = default;

qxFindings qxProblems::ofSet(const QString &set) const
{
    return m_lint->ofSet(set);
}

qxFindings qxProblems::ofVariant(const qxVariantKind &kind, const QString &variant) const
{
    return m_lint->ofVariant(kind, variant);
}

qxFindings qxProblems::of(const qxFindingPlace &place) const
{
    qxFindings found;
    const qxFindings candidates = !place.set.isEmpty() ? ofSet(place.set)
        : place.kind                                   ? ofVariant(*place.kind, place.name)
                                                       : m_all;
    std::copy_if(candidates.begin(), candidates.end(), std::back_inserter(found),
                 [&](const qxFinding &each) { return each.place == place; });
    return found;
}

QString qxProblems::textOf(const qxFinding &finding)
{
    return qxProblemWords::text(finding);
}

void qxProblems::update()
{
    m_lint->lookAtScene();
    m_lint->work(INT_MAX);
    m_soon.stop();
    m_idle.stop();
    tell();
}

bool qxProblems::isCurrent() const
{
    return !m_soon.isActive() && !m_idle.isActive();
}

void qxProblems::lookAgain()
{
    m_lint->lookAgain();
    m_soon.start();
}

void qxProblems::lookAtScene()
{
    m_lint->lookAtScene();
    m_soon.start();
}

void qxProblems::goOn()
{
    if (!m_lint->work(Slice))
        return;
    m_idle.stop();
    tell();
}

void qxProblems::tell()
{
    if (!m_lint->takeChange())
        return;
    m_all = m_lint->all();
    Q_EMIT changed();
}
