// The order of virtual operations and of fields in what panels and dialogs are built from: layouts,
// buttons, labels, sliders, menus, dialogs. A change here breaks programs that were compiled before
// it.

#include "DialogTools.h"
#include "support/BinaryInterface.h"
#include "support/Events.h"
#include "support/TestMain.h"
#include "UI/FxUIAction.h"
#include "UI/FxUIDialogButtonBox.h"
#include "UI/FxUIHorizontalLayout.h"
#include "UI/FxUILabel.h"
#include "UI/FxUIMenu.h"
#include "UI/FxUIPushButton.h"
#include "UI/FxUISlider.h"
#include "UI/FxUIVerticalLayout.h"
#include "UI/IFxUIDialogFrontend.h"
#include "UI/Impl/FxUIActionImpl.h"
#include "UI/Impl/FxUIDialogButtonBoxImpl.h"
#include "UI/Impl/FxUIHorizontalLayoutImpl.h"
#include "UI/Impl/FxUILabelImpl.h"
#include "UI/Impl/FxUIMenuImpl.h"
#include "UI/Impl/FxUIPushButtonImpl.h"
#include "UI/Impl/FxUISliderImpl.h"
#include "UI/Impl/FxUIVerticalLayoutImpl.h"
#include "UI/Impl/qt/frontend/FxUIPushButtonFrontend.h"
#include "UI/Impl/qt/frontend/FxUIVertLayoutFrontend.h"
#include "UI/Impl/qt/frontend/FxWidgetSpinner.h"

#include <QtTest/QTest>

#include <memory>

static_assert(sizeof(CFxUIAction) == sizeof(CFxUIObject), "adds no fields");
static_assert(sizeof(CFxUIMenu) == sizeof(CFxUIObject), "adds no fields");
static_assert(sizeof(CFxUIDialog) == sizeof(CFxUIObject), "adds no fields");
static_assert(sizeof(CFxUIVerticalLayout) == sizeof(CFxUIBaseView), "adds no fields");
static_assert(sizeof(CFxUIHorizontalLayout) == sizeof(CFxUIBaseView), "adds no fields");
static_assert(sizeof(CFxUIPushButton) == sizeof(CFxUIBaseView), "adds no fields");
static_assert(sizeof(CFxUILabel) == sizeof(CFxUIBaseView), "adds no fields");
static_assert(sizeof(CFxUISlider) == sizeof(CFxUIBaseView), "adds no fields");
static_assert(sizeof(CFxUIDialogButtonBox) == sizeof(CFxUIBaseView), "adds no fields");

namespace {

// Of the base's fields the last one begins each list.
class VerticalLayoutProbe : public CFxUIVerticalLayoutImpl {
public:
    using CFxUIVerticalLayoutImpl::CFxUIVerticalLayoutImpl;

    QVector<const void *> Fields() const { return { &m_hoverLeave, &m_name }; }
};

class HorizontalLayoutProbe : public CFxUIHorizontalLayoutImpl {
public:
    using CFxUIHorizontalLayoutImpl::CFxUIHorizontalLayoutImpl;

    QVector<const void *> Fields() const { return { &m_hoverLeave, &m_name }; }
};

class PushButtonProbe : public CFxUIPushButtonImpl {
public:
    using CFxUIPushButtonImpl::CFxUIPushButtonImpl;

    QVector<const void *> Fields() const
    {
        return { &m_hoverLeave, &m_text, &m_icon, &m_iconSize, &m_elideText, &m_clicked };
    }
};

class LabelProbe : public CFxUILabelImpl {
public:
    using CFxUILabelImpl::CFxUILabelImpl;

    QVector<const void *> Fields() const
    {
        return { &m_hoverLeave, &m_icon, &m_pixmap, &m_text, &m_fontSize, &m_wordWrap, &m_toolTip };
    }
};

class SliderProbe : public CFxUISliderImpl {
public:
    using CFxUISliderImpl::CFxUISliderImpl;

    QVector<const void *> Fields() const
    {
        return { &m_hoverLeave, &m_minimum, &m_maximum, &m_value, &m_valueChanged };
    }
};

class ActionProbe : public CFxUIActionImpl {
public:
    using CFxUIActionImpl::CFxUIActionImpl;

    QVector<const void *> Fields() const
    {
        return { &owner,     &m_text,      &m_icon,    &m_iconWidth, &m_iconHeight,
                 &m_enabled, &m_checkable, &m_checked, &m_visible,   &m_triggered };
    }
};

class MenuProbe : public CFxUIMenuImpl {
public:
    using CFxUIMenuImpl::CFxUIMenuImpl;

    QVector<const void *> Fields() const { return { &owner, &m_actions }; }
};

class DialogProbe : public CFxUIDialogImpl {
public:
    using CFxUIDialogImpl::CFxUIDialogImpl;

    QVector<const void *> Fields() const
    {
        return { &owner,    &m_mainLayout, &m_layoutView, &m_windowTitle,
                 &m_result, &m_accepted,   &m_rejected,   &m_finished };
    }
};

class ButtonBoxProbe : public CFxUIDialogButtonBoxImpl {
public:
    using CFxUIDialogButtonBoxImpl::CFxUIDialogButtonBoxImpl;

    QVector<const void *> Fields() const
    {
        return { &m_hoverLeave, &m_okButton, &m_cancelButton, &m_helpButton,
                 &m_accepted,   &m_clicked,  &m_helpRequest,  &m_rejected };
    }
};

class DialogFrontendProbe : public CFxUIDialogFrontend {
public:
    QVector<const void *> Fields() const
    {
        return { &impl, &m_uiNotYetSetup, &m_rejectCallObject };
    }
};

class PushButtonFrontendProbe : public CFxUIPushButtonFrontend {
public:
    QVector<const void *> Fields() const { return { &impl, &m_fullText }; }
};

class VertLayoutFrontendProbe : public CFxUIVertLayoutFrontend {
public:
    QVector<const void *> Fields() const { return { &impl, &m_spinner }; }
};

class SpinnerProbe : public CFxWidgetSpinner {
public:
    using CFxWidgetSpinner::CFxWidgetSpinner;

    QVector<const void *> Fields() const { return { &m_snapshot, &m_movie, &m_widget }; }
};

} // namespace

class tst_PanelsBinaryInterface : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void virtualOperationsOfADialog();
    void virtualOperationsOfADialogsImplementation();
    void virtualOperationsOfAHost();
    void clickHandlerStandsBehindTheBases();
    void classAddsNoVirtualOperation_data();
    void classAddsNoVirtualOperation();
    void fieldsStandInTheirOrder_data();
    void fieldsStandInTheirOrder();
};

void tst_PanelsBinaryInterface::cleanup()
{
    FlushDeferredDeletes();
    DeleteLeftBehindWindows();
}

void tst_PanelsBinaryInterface::virtualOperationsOfADialog()
{
    const QList<int> positions = {
        Position(&CFxUIDialog::SetupUI),    Position(&CFxUIDialog::GetHelpId),
        Position(&CFxUIDialog::GetHelpURL), Position(&CFxUIDialog::exec),
        Position(&CFxUIDialog::showEvent),  Position(&CFxUIDialog::hideEvent),
        Position(&CFxUIDialog::accept),     Position(&CFxUIDialog::reject),
        Position(&CFxUIDialog::done),       PositionBehind<CFxUIDialog>()
    };
    QCOMPARE(positions, QList<int>({ 2, 3, 4, 5, 6, 7, 8, 9, 10, 11 }));
}

void tst_PanelsBinaryInterface::virtualOperationsOfADialogsImplementation()
{
    const QList<int> positions = { Position(&CFxUIDialogImpl::GetFrontendClassName),
                                   Position(&CFxUIDialogImpl::CreateFrontendControl),
                                   Position(&CFxUIDialogImpl::SetObjectNameImpl),
                                   Position(&CFxUIDialogImpl::SetPropertyImpl),
                                   Position(&CFxUIDialogImpl::GetHelpId),
                                   Position(&CFxUIDialogImpl::GetHelpURL),
                                   Position(&CFxUIDialogImpl::showEvent),
                                   Position(&CFxUIDialogImpl::hideEvent),
                                   PositionBehind<CFxUIDialogImpl>() };
    QCOMPARE(positions, QList<int>({ 2, 3, 4, 5, 6, 7, 8, 9, 10 }));
}

// What the host implements or has in its kernel library.
void tst_PanelsBinaryInterface::virtualOperationsOfAHost()
{
    QCOMPARE(Position(&IFxUIDialogFrontend::IsRejectAllowed), 0);
    const int first = PositionBehind<QDialog>();
    const QList<int> positions = { Position(&CFxDialog::GetHelpId),
                                   Position(&CFxDialog::BeginEditorCommand),
                                   Position(&CFxDialog::CancelEditorCommand),
                                   Position(&CFxDialog::CompleteEditorCommand),
                                   Position(&CFxDialog::Help),
                                   PositionBehind<CFxDialog>() };
    QCOMPARE(positions,
             QList<int>({ first, first + 1, first + 2, first + 3, first + 4, first + 5 }));
    QCOMPARE(PositionBehind<CFxUIDialogFrontend>(), PositionBehind<CFxDialog>());
}

void tst_PanelsBinaryInterface::clickHandlerStandsBehindTheBases()
{
    QCOMPARE(Position(&CFxUIPushButtonImpl::OnPressed), PositionBehind<CFxUIBaseViewImpl>());
    QCOMPARE(PositionBehind<CFxUIPushButtonImpl>(), PositionBehind<CFxUIBaseViewImpl>() + 1);
}

void tst_PanelsBinaryInterface::classAddsNoVirtualOperation_data()
{
    QTest::addColumn<int>("positionBehind");
    QTest::addColumn<int>("positionBehindTheBase");
    const int view = PositionBehind<CFxUIBaseView>();
    QTest::newRow("CFxUIVerticalLayout") << PositionBehind<CFxUIVerticalLayout>() << view;
    QTest::newRow("CFxUIHorizontalLayout") << PositionBehind<CFxUIHorizontalLayout>() << view;
    QTest::newRow("CFxUIPushButton") << PositionBehind<CFxUIPushButton>() << view;
    QTest::newRow("CFxUILabel") << PositionBehind<CFxUILabel>() << view;
    QTest::newRow("CFxUISlider") << PositionBehind<CFxUISlider>() << view;
    QTest::newRow("CFxUIDialogButtonBox") << PositionBehind<CFxUIDialogButtonBox>() << view;
    const int object = PositionBehind<CFxUIObject>();
    QTest::newRow("CFxUIAction") << PositionBehind<CFxUIAction>() << object;
    QTest::newRow("CFxUIMenu") << PositionBehind<CFxUIMenu>() << object;
    const int viewImpl = PositionBehind<CFxUIBaseViewImpl>();
    QTest::newRow("CFxUIVerticalLayoutImpl")
        << PositionBehind<CFxUIVerticalLayoutImpl>() << viewImpl;
    QTest::newRow("CFxUIHorizontalLayoutImpl")
        << PositionBehind<CFxUIHorizontalLayoutImpl>() << viewImpl;
    QTest::newRow("CFxUILabelImpl") << PositionBehind<CFxUILabelImpl>() << viewImpl;
    QTest::newRow("CFxUISliderImpl") << PositionBehind<CFxUISliderImpl>() << viewImpl;
    QTest::newRow("CFxUIDialogButtonBoxImpl")
        << PositionBehind<CFxUIDialogButtonBoxImpl>() << viewImpl;
    const int objectImpl = PositionBehind<CFxUIObjectImpl>();
    QTest::newRow("CFxUIActionImpl") << PositionBehind<CFxUIActionImpl>() << objectImpl;
    QTest::newRow("CFxUIMenuImpl") << PositionBehind<CFxUIMenuImpl>() << objectImpl;
}

void tst_PanelsBinaryInterface::classAddsNoVirtualOperation()
{
    QFETCH(int, positionBehind);
    QFETCH(int, positionBehindTheBase);
    QCOMPARE(positionBehind, positionBehindTheBase);
}

void tst_PanelsBinaryInterface::fieldsStandInTheirOrder_data()
{
    QTest::addColumn<bool>("inOrder");
    CFxUIObject object;
    QTest::newRow("CFxUIVerticalLayoutImpl") << IsInOrder(VerticalLayoutProbe(&object).Fields());
    QTest::newRow("CFxUIHorizontalLayoutImpl")
        << IsInOrder(HorizontalLayoutProbe(&object).Fields());
    QTest::newRow("CFxUIPushButtonImpl") << IsInOrder(PushButtonProbe(&object).Fields());
    QTest::newRow("CFxUILabelImpl") << IsInOrder(LabelProbe(&object).Fields());
    QTest::newRow("CFxUISliderImpl") << IsInOrder(SliderProbe(&object).Fields());
    QTest::newRow("CFxUIActionImpl") << IsInOrder(ActionProbe(&object).Fields());
    QTest::newRow("CFxUIMenuImpl") << IsInOrder(MenuProbe(&object).Fields());
    TestDialog dialog;
    QTest::newRow("CFxUIDialogImpl") << IsInOrder(DialogProbe(&dialog).Fields());
    CFxUIDialogButtonBox box(nullptr);
    const std::unique_ptr<QObject> own(box.getHandle());
    QTest::newRow("CFxUIDialogButtonBoxImpl") << IsInOrder(ButtonBoxProbe(&box, nullptr).Fields());
    QTest::newRow("CFxUIDialogFrontend") << IsInOrder(DialogFrontendProbe().Fields());
    QTest::newRow("CFxUIPushButtonFrontend") << IsInOrder(PushButtonFrontendProbe().Fields());
    QTest::newRow("CFxUIVertLayoutFrontend") << IsInOrder(VertLayoutFrontendProbe().Fields());
    QTest::newRow("CFxWidgetSpinner") << IsInOrder(SpinnerProbe(nullptr).Fields());
}

void tst_PanelsBinaryInterface::fieldsStandInTheirOrder()
{
    QFETCH(bool, inOrder);
    QVERIFY(inOrder);
}

int main(int argc, char **argv)
{
    return RunTest<tst_PanelsBinaryInterface>(argc, argv);
}

#include "tst_PanelsBinaryInterface.moc"
