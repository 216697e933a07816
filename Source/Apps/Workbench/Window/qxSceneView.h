#pragma once

#include "Render/qxPicture.h"
#include "qxNodeSelection.h"
#include "qxOutline.h"

#include <OpenSG/OSGVector.h>

#include <QElapsedTimer>
#include <QWidget>

#include <functional>
#include <memory>

class QLabel;
class QTimer;
class qxMainGlView;

/// The 3D view of a window: a coarse picture while something moves, refined when nothing does.
///
/// The left button turns, the middle or the left one with Shift moves, the wheel or the right
/// button zooms; a click picks a node, with Ctrl several, a double click looks at it. What is
/// picked has an outline. Arrows turn, plus and minus zoom, F shows everything, Home leads home,
/// Escape picks nothing.
class qxSceneView : public QWidget {
    Q_OBJECT

public:
    /// Shows what is picked; the selection must outlive it.
    explicit qxSceneView(qxNodeSelection *picked, QWidget *parent = nullptr);
    ~qxSceneView() override;

    QSize sizeHint() const override { return QSize(800, 600); }
    /// Shows all of the scene, in the direction of the camera.
    void fitScene();
    /// The same of the nodes; when there is nothing to show of them, the camera stays.
    void fitNodes(const qxNodeSelection::Nodes &nodes);
    /// What is picked, or everything when nothing is.
    void fitPicked();
    void goHome();
    /// Whether what is picked has its outline; yes at first.
    void setOutlined(bool isOutlined);
    /// Call it for a new scene: forgets the point that the camera orbits.
    void showNewScene();

Q_SIGNALS:
    /// The user wants a menu for what is picked.
    void menuWanted(const QPoint &globalPosition);
    /// What the view is doing, for a status line; empty when the picture is finished.
    void progressed(const QString &text);

protected:
    void changeEvent(QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    void buildActions();
    void retranslate();
    void addAction(const char *text, int key, const std::function<void()> &run);
    void turn(float right, float down);
    void zoom(float factor);
    void takeCamera();
    void takePicture();
    /// Draws the outline for the picture that is shown.
    void outline();
    void pick(const QMouseEvent &event);
    /// Shows why nothing of the scene is visible.
    void showHint();
    static QString adviceOn(qxPicture::Content content);
    void tellProgress(float share);
    /// Of the screen, which may be finer than those of the layout.
    QSize pixels() const;
    void fitPixels();
    void cameraMoved();
    void drag(const QPointF &step, Qt::MouseButtons buttons, Qt::KeyboardModifiers modifiers);
    osg::NodePtr nodeAt(const QPointF &place) const;

    std::unique_ptr<qxMainGlView> m_view;
    QImage m_picture; ///< what the view shows
    qxNodeSelection *m_picked;
    qxOutline m_outline;
    bool m_isOutlined = true;
    QElapsedTimer m_lastPicture;
    QTimer *m_outlineLater; ///< when it takes too long for a camera that moves
    QString m_progress;
    QLabel *m_hint;
    osg::Pnt3f m_pivot;
    QPoint m_pressed;
    QPoint m_last;
    bool m_isDragged = false;
    bool m_isDoubleClick = false; ///< the button is still down
    bool m_wasClicked = false; ///< at m_clicked, and the camera has not moved since
    QPoint m_clicked;
    QList<QPair<QAction *, const char *>> m_texts; ///< to be translated
};
