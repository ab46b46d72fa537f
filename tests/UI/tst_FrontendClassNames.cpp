// The class names that implementation objects give their frontends, side by side. They are labels:
// some name no class that the control uses, and only their being empty or not has a meaning.

#include "NA/FxNANetworkAccessManager.h"
#include "NA/FxNANetworkReply.h"
#include "NA/FxNAWebSocket.h"
#include "support/Events.h"
#include "support/TestMain.h"
#include "UI/FxUIAction.h"
#include "UI/FxUICheckBox.h"
#include "UI/FxUIComboBox.h"
#include "UI/FxUIDialog.h"
#include "UI/FxUIDialogButtonBox.h"
#include "UI/FxUIDockWidget.h"
#include "UI/FxUIGroupBox.h"
#include "UI/FxUIHorizontalLayout.h"
#include "UI/FxUIImageView.h"
#include "UI/FxUILabel.h"
#include "UI/FxUIListBox.h"
#include "UI/FxUIMenu.h"
#include "UI/FxUIPreviewView.h"
#include "UI/FxUIPushButton.h"
#include "UI/FxUIRadioButton.h"
#include "UI/FxUIRadioGroup.h"
#include "UI/FxUIScrollableArea.h"
#include "UI/FxUISlider.h"
#include "UI/FxUIStackedWidget.h"
#include "UI/FxUITextEdit.h"
#include "UI/FxUITextView.h"
#include "UI/FxUITimer.h"
#include "UI/FxUIVerticalLayout.h"
#include "UI/Impl/FxUIBaseViewImpl.h"

#include <QtCore/QPointer>
#include <QtTest/QTest>

#include <memory>

namespace {

using Make = CFxUIObject *(*)();

template <class Control> CFxUIObject *New()
{
    return new Control;
}

CFxUIObject *NewPlainView()
{
    auto *view = new CFxUIBaseView;
    view->impl = new CFxUIBaseViewImpl(view);
    return view;
}

CFxUIObject *NewPlainObject()
{
    auto *object = new CFxUIObject;
    object->impl = new CFxUIObjectImpl(object);
    return object;
}

class Dialog : public CFxUIDialog {
public:
    void SetupUI() override { }
};

} // namespace

Q_DECLARE_METATYPE(Make)

class tst_FrontendClassNames : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void frontendClassName_data();
    void frontendClassName();
};

void tst_FrontendClassNames::frontendClassName_data()
{
    QTest::addColumn<Make>("make");
    QTest::addColumn<QString>("name");
    const auto row = [](const char *control, Make make, const char *name) {
        QTest::newRow(control) << make << QString::fromLatin1(name);
    };
    row("action", New<CFxUIAction>, "QAction");
    row("check box", New<CFxUICheckBox>, "QCheckBox");
    row("combo box", New<CFxUIComboBox>, "QComboBox");
    row(
        "dock widget", [] { return static_cast<CFxUIObject *>(new CFxUIDockWidget(0)); },
        "QDockWidget");
    row("group box", New<CFxUIGroupBox>, "QGroupBox");
    row("label", New<CFxUILabel>, "QLabel");
    row("horizontal layout", New<CFxUIHorizontalLayout>, "QHBoxLayout");
    row("vertical layout", New<CFxUIVerticalLayout>, "QVBoxLayout");
    row("list box", New<CFxUIListBox>, "QListWidget");
    row("menu", New<CFxUIMenu>, "QMenu");
    row("push button", New<CFxUIPushButton>, "CFxUIPushButtonFrontend");
    row("radio button", New<CFxUIRadioButton>, "QRadioButton");
    row("radio group", New<CFxUIRadioGroup>, "QButtonGroup");
    row("scrollable area", New<CFxUIScrollableArea>, "QScrollView");
    row("slider", New<CFxUISlider>, "QSlider");
    row("stacked widget", New<CFxUIStackedWidget>, "QTabWidget");
    row("text edit", New<CFxUITextEdit>, "CFxUITextEditFrontend");
    row("text view", New<CFxUITextView>, "CFxUITextViewFrontend");
    row("image view", New<CFxUIImageView>, "");
    row("preview view", New<CFxUIPreviewView>, "");
    row("plain view", NewPlainView, "");
    row("plain object", NewPlainObject, "");
    row("dialog", New<Dialog>, "");
    row(
        "dialog button box",
        [] { return static_cast<CFxUIObject *>(new CFxUIDialogButtonBox(nullptr)); }, "");
    row("timer", New<CFxUITimer>, "");
    row("network access manager", New<CFxNANetworkAccessManager>, "");
    row(
        "network reply", [] { return static_cast<CFxUIObject *>(new CFxNANetworkReply(nullptr)); },
        "");
    row("WebSocket", New<CFxNAWebSocket>, "");
}

void tst_FrontendClassNames::frontendClassName()
{
    QFETCH(Make, make);
    QFETCH(QString, name);
    std::unique_ptr<CFxUIObject> object(make());
    QCOMPARE(object->impl->GetFrontendClassName(), name);
    const QPointer<QObject> handle(object->getHandle());
    object.reset();
    FlushDeferredDeletes();
    delete handle; // a QAction or QButtonGroup stays behind
}

int main(int argc, char **argv)
{
    return RunTest<tst_FrontendClassNames>(argc, argv);
}

#include "tst_FrontendClassNames.moc"
