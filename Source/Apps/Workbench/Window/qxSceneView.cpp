#include "qxSceneView.h"

#include "Cameras/qxMainView.h"
#include "Pictures/qxMainGlView.h"
#include "Pictures/qxScenePicture.h"
#include "Render/qxSceneBox.h"
#include "Report/qxPictureHint.h"
#include "qxController.h"
#include "qxImageRenderWidget.h"
#include "qxKeyHints.h"
#include "qxOrbit.h"
#include "qxScenegraph.h"

#include <QAction>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

namespace {

const float defaultFieldOfView = 0.7f;
const float keyStep = 0.05f;
const float zoomStep = 1.1f;
const int clickDistance = 3; ///< in units of the layout: farther apart it is another place
const int stillTime = 150; ///< milliseconds without a picture: the camera does not move
const double fluentOutline = 10; ///< milliseconds that it may take while the camera moves

qxUberCamera &camera()
{
    return qxMainView::the().camera;
}

/// The box around nodes with all that is below them, in world coordinates; false for none.
bool boxOf(const qxNodeSelection::Nodes &nodes, osg::Pnt3f &low, osg::Pnt3f &high)
{
    osg::DynamicVolume all;
    all.setEmpty();
    for (const osg::NodePtr &node : nodes) {
        osg::DynamicVolume box = qxSceneBox(node);
        if (!box.isEmpty())
            all.extendBy(box);
    }
    if (!all.isEmpty())
        all.getBounds(low, high);
    return !all.isEmpty();
}

} // namespace

qxSceneView::qxSceneView(qxNodeSelection *picked, QWidget *parent)
    : QWidget(parent), m_picked(picked), m_outlineLater(new QTimer(this)), m_hint(new QLabel)
{
    buildActions();
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMinimumSize(160, 120);
    m_hint->setTextFormat(Qt::PlainText);
    m_hint->setWordWrap(true);
    m_hint->setMargin(8);
    m_hint->setAutoFillBackground(true);
    m_hint->setBackgroundRole(QPalette::ToolTipBase);
    m_hint->setForegroundRole(QPalette::ToolTipText);
    m_hint->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_hint->hide();
    (new QVBoxLayout(this))->addWidget(m_hint, 0, Qt::AlignBottom);
    m_view = std::make_unique<qxMainGlView>(width(), height());
    m_view->setFluent(true);
    m_view->setListener([this] { takePicture(); });
    m_view->setProgressListener([this](float share) { tellProgress(share); });
    m_outlineLater->setSingleShot(true);
    m_outlineLater->setInterval(stillTime);
    m_outlineLater->callOnTimeout(this, &qxSceneView::outline);
    connect(m_picked, &qxNodeSelection::changed, this, [this] {
        m_outline.setNodes(m_picked->nodes());
        outline();
    });
}

qxSceneView::~qxSceneView() = default;

/// From the first viewpoint of the scene, else so that all of it is seen.
void qxSceneView::showNewScene()
{
    qxMainView &view = qxMainView::the();
    if (const qxUberCamera *const first = qxUberCameraPool::the()->get(0)) {
        view.camera = *first;
        view.viewpoint = 0;
    } else {
        view.camera.fieldOfView = defaultFieldOfView;
        qxOrbit::turn(view.camera, osg::Pnt3f(0, 0, 0), -0.2f, 0.12f);
        fitScene();
    }
    view.home = view.camera;
    view.hasHome = true;
    takeCamera();
    qxController::updateRender(true);
}

/// The middle of the scene is what the hand turns, as far ahead as it is.
void qxSceneView::takeCamera()
{
    osg::Pnt3f low, high;
    if (boxOf({qxScenegraph::getRoot()}, low, high))
        m_pivot = low + (high - low) * 0.5f;
}

void qxSceneView::fitScene()
{
    fitNodes({qxScenegraph::getRoot()});
}

void qxSceneView::fitPicked()
{
    m_picked->isEmpty() ? fitScene() : fitNodes(m_picked->nodes());
}

void qxSceneView::fitNodes(const qxNodeSelection::Nodes &nodes)
{
    osg::Pnt3f low, high;
    if (!boxOf(nodes, low, high))
        return;
    m_pivot = low + (high - low) * 0.5f;
    const float radius = std::max(1e-3f, (high - low).length() / 2);
    qxOrbit::fit(camera(), m_pivot, radius, float(width()) / float(std::max(1, height())));
    cameraMoved();
}

void qxSceneView::goHome()
{
    qxMainView &view = qxMainView::the();
    if (!view.hasHome)
        return fitScene();
    view.camera = view.home;
    cameraMoved();
}

void qxSceneView::cameraMoved()
{
    qxMainView::the().viewpoint = -1;
    m_wasClicked = false;
    qxController::updateRender(false);
}

void qxSceneView::takePicture()
{
    qxImageRenderWidget::convertToQImage(m_picture, m_view->picture());
    if (!isVisible())
        m_view->cancelRefining(); // It would keep all processors busy for nothing.
    const bool isMoving = m_lastPicture.isValid() && m_lastPicture.elapsed() < stillTime;
    m_lastPicture.start();
    if (isMoving && m_outline.time() > fluentOutline) {
        m_outline.hide();
        m_outlineLater->start();
    } else {
        outline();
    }
    showHint();
    update();
}

void qxSceneView::outline()
{
    m_outlineLater->stop();
    m_outline.follow(pixels(), devicePixelRatioF());
    update();
}

void qxSceneView::showHint()
{
    const qxPicture::Content content = m_view->content();
    const bool hasScene = qxScenegraph::getRoot()->getNChildren() > 0;
    const bool isNeeded = hasScene && content != qxPicture::Shown;
    if (isNeeded) {
        m_hint->setText(
            tr("Nothing of the scene is to be seen: %1.").arg(qxPictureHint::reason(content))
            + QLatin1Char('\n') + adviceOn(content));
    }
    m_hint->setVisible(isNeeded);
}

QString qxSceneView::adviceOn(qxPicture::Content content)
{
    if (content == qxPicture::Hidden)
        return tr("Select another set, or tick nodes in the scene's tree.");
    if (content == qxPicture::CutAway)
        return tr("Move the clipping plane, or look from another viewpoint.");
    return tr("F shows everything, Home leads home.");
}

void qxSceneView::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() != QEvent::LanguageChange)
        return;
    showHint();
    retranslate();
}

void qxSceneView::tellProgress(float share)
{
    const QString text = share < 1 ? tr("Refining: %1 %").arg(int(share * 100)) : QString();
    if (text == m_progress)
        return;
    m_progress = text;
    Q_EMIT progressed(text);
}

void qxSceneView::paintEvent(QPaintEvent *)
{
    fitPixels(); // The window may have come to another screen.
    QPainter painter(this);
    if (m_picture.isNull())
        return painter.fillRect(rect(), palette().window());
    painter.setRenderHint(QPainter::SmoothPixmapTransform, m_picture.size() != pixels());
    painter.drawImage(rect(), m_picture);
    if (m_isOutlined)
        m_outline.paint(painter, size());
}

void qxSceneView::setOutlined(bool isOutlined)
{
    m_isOutlined = isOutlined;
    update();
}

void qxSceneView::showEvent(QShowEvent *)
{
    qxController::updateRender(true);
}

void qxSceneView::resizeEvent(QResizeEvent *)
{
    fitPixels();
}

QSize qxSceneView::pixels() const
{
    return size() * devicePixelRatioF();
}

void qxSceneView::fitPixels()
{
    m_view->resize(pixels().width(), pixels().height());
}

void qxSceneView::mousePressEvent(QMouseEvent *event)
{
    m_pressed = m_last = event->pos();
    m_isDragged = false;
}

void qxSceneView::mouseMoveEvent(QMouseEvent *event)
{
    m_isDragged |= (event->pos() - m_pressed).manhattanLength() > clickDistance;
    if (!m_isDragged)
        return;
    drag(QPointF(event->pos() - m_last) / std::max(1, height()), event->buttons(),
         event->modifiers());
    m_last = event->pos();
}

void qxSceneView::drag(const QPointF &step, Qt::MouseButtons buttons,
                       Qt::KeyboardModifiers modifiers)
{
    const float right = float(step.x());
    const float down = float(step.y());
    const bool isPan = buttons & Qt::MiddleButton || modifiers & Qt::ShiftModifier;
    if (isPan)
        qxOrbit::pan(camera(), m_pivot, right, -down);
    else if (buttons & Qt::RightButton)
        qxOrbit::zoom(camera(), m_pivot, std::exp(-2 * down));
    else
        qxOrbit::turn(camera(), m_pivot, right, down);
    cameraMoved();
}

void qxSceneView::mouseReleaseEvent(QMouseEvent *event)
{
    const bool isClick = !m_isDragged && !m_isDoubleClick;
    m_isDoubleClick = false;
    if (isClick && event->button() == Qt::LeftButton) {
        pick(*event);
    } else if (isClick && event->button() == Qt::RightButton) {
        const osg::NodePtr node = nodeAt(event->localPos());
        if (node == osg::NullFC || !m_picked->hasAtOrAbove(node))
            m_picked->pick(node, qxNodeSelection::Alone);
        Q_EMIT menuWanted(event->globalPos());
    }
}

void qxSceneView::pick(const QMouseEvent &event)
{
    const bool isAgain =
        m_wasClicked && (event.pos() - m_clicked).manhattanLength() <= clickDistance;
    m_wasClicked = true;
    m_clicked = event.pos();
    m_picked->pick(nodeAt(event.localPos()),
                   event.modifiers() & Qt::ControlModifier ? qxNodeSelection::Besides
                       : isAgain                           ? qxNodeSelection::Again
                                                           : qxNodeSelection::Alone);
}

void qxSceneView::mouseDoubleClickEvent(QMouseEvent *event)
{
    m_isDoubleClick = true;
    if (event->button() == Qt::LeftButton)
        fitNodes({nodeAt(event->localPos())});
}

/// That of the right button waits for its release: the button zooms, too.
void qxSceneView::contextMenuEvent(QContextMenuEvent *event)
{
    if (event->reason() == QContextMenuEvent::Keyboard)
        Q_EMIT menuWanted(mapToGlobal(rect().center()));
}

/// Escape is no action: where there is nothing to clear, others may have it.
void qxSceneView::keyPressEvent(QKeyEvent *event)
{
    if (event->key() != Qt::Key_Escape || m_picked->isEmpty())
        return QWidget::keyPressEvent(event);
    m_picked->clear();
}

osg::NodePtr qxSceneView::nodeAt(const QPointF &place) const
{
    qxPictureSettings settings;
    settings.width = std::max(1, width());
    settings.height = std::max(1, height());
    return qxScenePicture::nodeAt(settings, float(place.x()), float(height() - place.y()));
}

void qxSceneView::wheelEvent(QWheelEvent *event)
{
    qxOrbit::zoom(camera(), m_pivot, std::exp(float(event->angleDelta().y()) / 800));
    cameraMoved();
}

/// Its keys are actions, so that whoever gives keys to something else can see them.
void qxSceneView::buildActions()
{
    addAction(QT_TR_NOOP("Turn Left"), Qt::Key_Left, [this] { turn(-keyStep, 0); });
    addAction(QT_TR_NOOP("Turn Right"), Qt::Key_Right, [this] { turn(keyStep, 0); });
    addAction(QT_TR_NOOP("Turn Up"), Qt::Key_Up, [this] { turn(0, -keyStep); });
    addAction(QT_TR_NOOP("Turn Down"), Qt::Key_Down, [this] { turn(0, keyStep); });
    addAction(QT_TR_NOOP("Zoom In"), Qt::Key_Plus, [this] { zoom(zoomStep); });
    addAction(QT_TR_NOOP("Zoom Out"), Qt::Key_Minus, [this] { zoom(1 / zoomStep); });
    addAction(QT_TR_NOOP("Show Everything"), Qt::Key_F, [this] { fitScene(); });
    addAction(QT_TR_NOOP("Frame What Is Picked"), Qt::SHIFT + Qt::Key_F, [this] { fitPicked(); });
    addAction(QT_TR_NOOP("Home"), Qt::Key_Home, [this] { goHome(); });
    retranslate();
}

void qxSceneView::addAction(const char *text, int key, const std::function<void()> &run)
{
    auto *const action = new QAction(this);
    action->setShortcut(key);
    action->setShortcutContext(Qt::WidgetShortcut);
    connect(action, &QAction::triggered, this, run);
    QWidget::addAction(action);
    m_texts.append({action, text});
}

void qxSceneView::retranslate()
{
    for (const auto &action : m_texts)
        action.first->setText(tr(action.second));
    setAccessibleName(tr("3D View"));
    qxKeyHints::tell(*this,
                     {{tr("Left button"), tr("Turn")},
                      {tr("Middle button, left button with Shift"), tr("Move")},
                      {tr("Wheel, right button"), tr("Zoom")},
                      {tr("Click"), tr("Pick a node: the tree shows it")},
                      {tr("Double click"), tr("Look at the node")}});
}

void qxSceneView::turn(float right, float down)
{
    qxOrbit::turn(camera(), m_pivot, right, down);
    cameraMoved();
}

void qxSceneView::zoom(float factor)
{
    qxOrbit::zoom(camera(), m_pivot, factor);
    cameraMoved();
}
