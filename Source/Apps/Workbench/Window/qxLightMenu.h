#pragma once

#include <QMenu>

class QActionGroup;

/// The menu with light and background of all pictures (qxViewSettings). Exposure, background and
/// ground are remembered for the next time, and which pictures were environments.
class qxLightMenu : public QMenu {
    Q_OBJECT

public:
    explicit qxLightMenu(QWidget *parent);

    /// Lights the scene by the picture in this file; shows the reason if it cannot be read.
    void usePicture(const QString &file);

protected:
    void changeEvent(QEvent *event) override;

private:
    enum Environment { OfScene, Studio, Picture };

    void buildEnvironment();
    void buildBackground();
    void buildExposure();
    void restore();
    void retranslate();
    void fillRecent();
    void use(Environment environment);
    void askForPicture();
    bool askForColour();
    bool checkBackground(int background);
    void checkEnvironment();
    void setBackground(int background);
    void setExposure(float exposure);
    QAction *choice(QActionGroup *group, const char *text);
    QAction *named(QAction *action, const char *text);

    QMenu *m_environment;
    QMenu *m_background;
    QActionGroup *m_environments;
    QActionGroup *m_backgrounds;
    QAction *m_picture; ///< asks for one
    QAction *m_normal; ///< the exposure
    QAction *m_ground;
    QString m_file; ///< of the picture that was chosen last
    QList<QAction *> m_recent;
    QList<QPair<QAction *, const char *>> m_texts; ///< to be translated
};
