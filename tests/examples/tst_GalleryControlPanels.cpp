#include "ShownPanel.h"
#include "support/TestMain.h"

#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtGui/QImage>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QDialog>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QMenu>
#include <QtWidgets/QSlider>

namespace {

QPushButton *Button(const QWidget &window, const char *text)
{
    const QList<QPushButton *> buttons = window.findChildren<QPushButton *>();
    for (QPushButton *button : buttons) {
        if (button->text().startsWith(QString::fromUtf8(text)))
            return button;
    }
    return nullptr;
}

/// Calls \a use once with the dialog that \a open opens, from inside its event loop.
template <class Dialog>
void WithDialog(const std::function<void()> &open, const std::function<void(Dialog &)> &use)
{
    const QWidget *before = QApplication::activeModalWidget();
    bool used = false;
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, [&] {
        auto *dialog = qobject_cast<Dialog *>(QApplication::activeModalWidget());
        if (!dialog || dialog == before)
            return;
        poll.stop();
        used = true;
        use(*dialog);
        if (dialog->isVisible())
            dialog->reject();
    });
    poll.start();
    open();
    QVERIFY(used);
}

void ChooseFile(Panel &panel, const QString &name)
{
    WithDialog<QFileDialog>([&panel] { panel.Press("Open a picture file..."); },
                            [&name](QFileDialog &chooser) {
                                if (name.isEmpty())
                                    return;
                                chooser.findChild<QLineEdit *>()->setText(name);
                                QMetaObject::invokeMethod(&chooser, "accept");
                            });
}

QSize ShownPicture(const Panel &panel)
{
    const QList<QLabel *> labels = panel.window.findChildren<QLabel *>();
    for (const QLabel *label : labels) {
        const QPixmap pixmap = label->pixmap(Qt::ReturnByValue);
        if (!pixmap.isNull())
            return pixmap.size();
    }
    return {};
}

/// Starts a run of the rehearsal and calls \a use inside it.
void Rehearse(Panel &panel, const std::function<void(QDialog &)> &use)
{
    WithDialog<QDialog>([&panel] { panel.Press("exec()"); }, use);
}

void PressStandardButton(QDialog &dialog, QDialogButtonBox::StandardButton which)
{
    QTest::mouseClick(dialog.findChild<QDialogButtonBox *>()->button(which), Qt::LeftButton);
}

} // namespace

class tst_GalleryControlPanels : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void buttonsLogClicksAndHovering();
    void captionFollowsTheWidth();
    void menuEntriesReportWhatTheUserSelects();
    void sheetShowsWhatTheButtonsWrite();
    void labelShowsItsText();
    void pictureFileIsShown();
    void brokenPictureFileGetsAMessage();
    void noPictureFileChosenChangesNothing();
    void sliderAnswersWhatWasAskedAtItsEnd();
    void dialogRunsAndIsSetUpOnce();
    void dialogIsVetoedWhileItIsSaidSo();
    void dialogShowsEmptyBeforeItsFirstRun();
    void dialogEmitsWhatTheHostCalls();
};

void tst_GalleryControlPanels::initTestCase()
{
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs); // so that tests can find the chooser
}

void tst_GalleryControlPanels::buttonsLogClicksAndHovering()
{
    RunPanel("buttons", [](Panel &panel) {
        QPushButton *plain = Button(panel.window, "Point at me");
        panel.host.Take();
        QEvent enter(QEvent::Enter);
        QCoreApplication::sendEvent(plain, &enter);
        QTest::mouseClick(plain, Qt::LeftButton);
        QCOMPARE(panel.host.Take(),
                 QStringList({ QStringLiteral("Push button.hoverEnter()"),
                               QStringLiteral("Push button.clicked(true)") }));
        panel.Press("On or off");
        panel.Press("On or off");
        QCOMPARE(panel.host.Take(),
                 QStringList({ QStringLiteral("Checkable.clicked(true)"),
                               QStringLiteral("Checkable.clicked(true)") }));
    });
}

void tst_GalleryControlPanels::captionFollowsTheWidth()
{
    RunPanel("buttons", [](Panel &panel) {
        const QPushButton *button = Button(panel.window, "Export the");
        auto *slider = panel.window.findChild<QSlider *>();
        const QString first = button->text();
        QTest::keyClick(slider, Qt::Key_Home);
        QCoreApplication::processEvents(); // the layout's turn
        QCOMPARE(button->width(), 60);
        QVERIFY(button->text().size() < first.size());
        QVERIFY(panel.Shows("text() \"Export the whole drawing with all of its layers\""));
        panel.Press("setElideTextEnabled(false)");
        const QString narrow = button->text();
        QTest::keyClick(slider, Qt::Key_End);
        QCoreApplication::processEvents();
        QCOMPARE(button->text(), narrow);
        panel.Press("setText(text())");
        QCOMPARE(button->text(), QStringLiteral("Export the whole drawing with all of its layers"));
    });
}

void tst_GalleryControlPanels::menuEntriesReportWhatTheUserSelects()
{
    RunPanel("buttons", [](Panel &panel) {
        const QMenu *menu = Button(panel.window, "Layer")->menu();
        QCOMPARE(menu->actions().size(), 4); // with the separator
        panel.host.Take();
        for (QAction *entry : menu->actions())
            entry->trigger();
        QCOMPARE(panel.host.Take(),
                 QStringList({ QStringLiteral("With a menu.Rename.triggered(false)"),
                               QStringLiteral("With a menu.Pinned.triggered(true)"),
                               QStringLiteral("With a menu.Archived.triggered(false)") }));
        QVERIFY(panel.Shows("isChecked() false"));
        panel.Press("setChecked(true)");
        QVERIFY(panel.Shows("isChecked() true"));
        panel.Press("clear()");
        QVERIFY(menu->isEmpty());
        panel.Press("addAction() again");
        QCOMPARE(menu->actions().size(), 3);
    });
}

void tst_GalleryControlPanels::sheetShowsWhatTheButtonsWrite()
{
    RunPanel("buttons", [](Panel &panel) {
        panel.Press("Left");
        panel.Press("Bold");
        QVERIFY(panel.Shows("QPushButton { text-align:left; font-weight: bold; }"));
        panel.Press("No arrow");
        QVERIFY(panel.Shows("menu-indicator{image:url(none.jpg); }"));
        panel.Press("Right");
        QVERIFY(panel.Shows("image:url(none.jpg); text-align:right; }"));
    });
}

void tst_GalleryControlPanels::labelShowsItsText()
{
    RunPanel("labels", [](Panel &panel) {
        panel.Press("Longer");
        QVERIFY(panel.Shows("text() \"The quick brown fox and the lazy dog\""));
        panel.Press("Word wrap");
        QVERIFY(panel.Shows("wordWrap() true"));
    });
}

void tst_GalleryControlPanels::pictureFileIsShown()
{
    const QTemporaryDir folder;
    const QString name = folder.filePath(QStringLiteral("photograph.jpg"));
    QImage image(200, 200, QImage::Format_RGB32); // small enough for Qt to scale without threads
    image.fill(Qt::darkCyan);
    QVERIFY(image.save(name));
    RunPanel("labels", [&name](Panel &panel) {
        ChooseFile(panel, name);
        QVERIFY(panel.Shows("photograph.jpg, 200 by 200 pixels"));
        QCOMPARE(ShownPicture(panel), QSize(120, 120)); // scaled into its frame
        QVERIFY(panel.Shows("text() \"A caption under cover\""));
        panel.Press("setIcon()");
        QCOMPARE(ShownPicture(panel), QSize(25, 25));
        panel.Press("clear()");
        QVERIFY(panel.Shows("text() \"\""));
        QCOMPARE(ShownPicture(panel), QSize(25, 25));
    });
}

void tst_GalleryControlPanels::brokenPictureFileGetsAMessage()
{
    const QTemporaryDir folder;
    const QString name = folder.filePath(QStringLiteral("broken.png"));
    QFile file(name);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("no picture");
    file.close();
    RunPanel("labels", [&name](Panel &panel) {
        const QSize before = ShownPicture(panel);
        ChooseFile(panel, name);
        QVERIFY(panel.Shows("broken.png can't be shown: "));
        QCOMPARE(ShownPicture(panel), before);
    });
}

void tst_GalleryControlPanels::noPictureFileChosenChangesNothing()
{
    RunPanel("labels", [](Panel &panel) {
        const QSize before = ShownPicture(panel);
        ChooseFile(panel, QString());
        QVERIFY(panel.Shows("Picture: painted here"));
        QCOMPARE(ShownPicture(panel), before);
    });
}

void tst_GalleryControlPanels::sliderAnswersWhatWasAskedAtItsEnd()
{
    RunPanel("labels", [](Panel &panel) {
        panel.host.Take();
        panel.Press("setValue(1000)");
        QVERIFY(panel.Shows("value() 40"));
        QCOMPARE(panel.host.Take(),
                 QStringList({ QStringLiteral("From 8 to 40.valueChanged(40)") }));
        panel.Press("setValue(1000)");
        QVERIFY(panel.Shows("value() 1000"));
        QCOMPARE(panel.host.Take(), QStringList());
    });
}

void tst_GalleryControlPanels::dialogRunsAndIsSetUpOnce()
{
    RunPanel("dialogs", [](Panel &panel) {
        QVERIFY(panel.Shows("Set-ups 0, runs 0"));
        Rehearse(panel, [](QDialog &dialog) { PressStandardButton(dialog, QDialogButtonBox::Ok); });
        QVERIFY(panel.Shows("result() 1"));
        QVERIFY(panel.Shows("Set-ups 1, runs 1"));
        QCOMPARE(panel.host.Take(),
                 QStringList({ QStringLiteral("From the host.box.clicked(object)"),
                               QStringLiteral("From the host.box.accepted()"),
                               QStringLiteral("A run.exec() returned(1)") }));
        Rehearse(panel, [](QDialog &dialog) {
            QTest::mouseClick(Button(dialog, "done(5)"), Qt::LeftButton);
        });
        QVERIFY(panel.Shows("result() 5"));
        QVERIFY(panel.Shows("Set-ups 1, runs 2"));
    });
}

void tst_GalleryControlPanels::dialogIsVetoedWhileItIsSaidSo()
{
    RunPanel("dialogs", [](Panel &panel) {
        QTest::mouseClick(panel.window.findChild<QCheckBox *>(), Qt::LeftButton, Qt::NoModifier,
                          QPoint(8, 16));
        panel.host.Take();
        bool open = false;
        Rehearse(panel, [&open](QDialog &dialog) {
            QTest::keyClick(&dialog, Qt::Key_Escape);
            open = dialog.isVisible();
            QTest::mouseClick(Button(dialog, "setResult(7)"), Qt::LeftButton);
        });
        QVERIFY(open);
        QVERIFY(panel.Shows("result() 7"));
        QVERIFY(panel.host.Take().contains(
            QStringLiteral("Allowed.IsRejectAllowed() answered(false)")));
    });
}

void tst_GalleryControlPanels::dialogShowsEmptyBeforeItsFirstRun()
{
    RunPanel("dialogs", [](Panel &panel) {
        const auto *rehearsal = panel.window.findChild<QDialog *>();
        QVERIFY(rehearsal);
        panel.Press("setVisible(true)");
        QVERIFY(rehearsal->isVisible());
        QVERIFY(rehearsal->findChildren<QWidget *>().isEmpty());
        panel.Press("setVisible(false)");
        QVERIFY(!rehearsal->isVisible());
        QVERIFY(panel.Shows("Set-ups 0"));
    });
}

void tst_GalleryControlPanels::dialogEmitsWhatTheHostCalls()
{
    RunPanel("dialogs", [](Panel &panel) {
        Rehearse(panel, [](QDialog &dialog) {
            QTest::mouseClick(Button(dialog, "OnHelpPressed()"), Qt::LeftButton);
            QTest::keyClick(&dialog, Qt::Key_Escape);
        });
        QVERIFY(panel.host.Take().contains(QStringLiteral("From the host.box.helpRequest()")));
        panel.Press("OnAccepted()");
        QCOMPARE(panel.host.Take(),
                 QStringList({ QStringLiteral("From the host.accepted()"),
                               QStringLiteral("From the host.box.accepted()") }));
    });
}

int main(int argc, char **argv)
{
    return RunTest<tst_GalleryControlPanels>(argc, argv);
}

#include "tst_GalleryControlPanels.moc"
