// The order of virtual operations and of fields in the controls and containers: a change here
// breaks programs that were compiled before it.

#include "support/BinaryInterface.h"
#include "support/TestMain.h"
#include "UI/FxUICheckBox.h"
#include "UI/FxUIComboBox.h"
#include "UI/FxUIDockWidget.h"
#include "UI/FxUIGroupBox.h"
#include "UI/FxUIImageView.h"
#include "UI/FxUIListBox.h"
#include "UI/FxUIPreviewView.h"
#include "UI/FxUIRadioButton.h"
#include "UI/FxUIRadioGroup.h"
#include "UI/FxUIScrollableArea.h"
#include "UI/FxUIStackedWidget.h"
#include "UI/Impl/FxUICheckBoxImpl.h"
#include "UI/Impl/FxUIComboBoxImpl.h"
#include "UI/Impl/FxUIDockWidgetImpl.h"
#include "UI/Impl/FxUIGroupBoxImpl.h"
#include "UI/Impl/FxUIImageViewImpl.h"
#include "UI/Impl/FxUIListBoxImpl.h"
#include "UI/Impl/FxUIRadioButtonImpl.h"
#include "UI/Impl/FxUIRadioGroupImpl.h"
#include "UI/Impl/FxUIScrollableAreaImpl.h"
#include "UI/Impl/FxUIStackedWidgetImpl.h"

#include <QtTest/QTest>

namespace {

// Of the base's fields the last one begins each list.
class GroupBoxProbe : public CFxUIGroupBoxImpl {
public:
    using CFxUIGroupBoxImpl::CFxUIGroupBoxImpl;

    QVector<const void *> Fields() const
    {
        return { &m_hoverLeave, &m_title, &m_collapsed, &m_onCollapsedStateChanged };
    }
};

class ScrollableAreaProbe : public CFxUIScrollableAreaImpl {
public:
    using CFxUIScrollableAreaImpl::CFxUIScrollableAreaImpl;

    QVector<const void *> Fields() const
    {
        return { &m_hoverLeave, &m_horizontalScrollingEnabled, &m_verticalScrollingEnabled };
    }
};

class DockWidgetProbe : public CFxUIDockWidgetImpl {
public:
    using CFxUIDockWidgetImpl::CFxUIDockWidgetImpl;

    QVector<const void *> Fields() const { return { &m_hoverLeave, &m_title, &m_widget }; }
};

class StackedWidgetProbe : public CFxUIStackedWidgetImpl {
public:
    using CFxUIStackedWidgetImpl::CFxUIStackedWidgetImpl;

    QVector<const void *> Fields() const
    {
        return {
            &m_hoverLeave,     &m_currentIndex,      &m_views,         &m_titles,
            &m_currentChanged, &m_tabCloseRequested, &m_tabBarClicked, &m_tabBarDoubleClicked
        };
    }
};

class CheckBoxProbe : public CFxUICheckBoxImpl {
public:
    using CFxUICheckBoxImpl::CFxUICheckBoxImpl;

    QVector<const void *> Fields() const
    {
        return { &m_hoverLeave, &m_checked,      &m_tristate, &m_text,
                 &m_checkState, &m_stateChanged, &m_toggled,  &m_clicked };
    }
};

class RadioButtonProbe : public CFxUIRadioButtonImpl {
public:
    using CFxUIRadioButtonImpl::CFxUIRadioButtonImpl;

    QVector<const void *> Fields() const
    {
        return { &m_hoverLeave, &m_checked, &m_text,   &m_container,
                 &m_released,   &m_clicked, &m_toggled };
    }
};

class RadioGroupProbe : public CFxUIRadioGroupImpl {
public:
    using CFxUIRadioGroupImpl::CFxUIRadioGroupImpl;

    QVector<const void *> Fields() const { return { &m_hoverLeave, &m_buttons, &m_title }; }
};

class ComboBoxProbe : public CFxUIComboBoxImpl {
public:
    using CFxUIComboBoxImpl::CFxUIComboBoxImpl;

    QVector<const void *> Fields() const
    {
        return {
            &m_hoverLeave,      &m_editable,       &m_currentIndex,        &m_currentText,
            &m_items,           &m_activated,      &m_currentIndexChanged, &m_currentStringChanged,
            &m_editTextChanged, &m_editingFinished
        };
    }
};

class ListBoxProbe : public CFxUIListBoxImpl {
public:
    using CFxUIListBoxImpl::CFxUIListBoxImpl;

    QVector<const void *> Fields() const
    {
        return { &m_hoverLeave, &m_texts, &m_items, &m_valueChanged };
    }
};

class ImageViewProbe : public CFxUIImageViewImpl {
public:
    using CFxUIImageViewImpl::CFxUIImageViewImpl;

    QVector<const void *> Fields() const
    {
        return { &m_hoverLeave, &m_image, &m_pixmap, &m_painter };
    }
};

} // namespace

class tst_ControlsBinaryInterface : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void publicClassAddsNeitherVirtualOperationNorField_data();
    void publicClassAddsNeitherVirtualOperationNorField();
    void implementationAddsNoVirtualOperation_data();
    void implementationAddsNoVirtualOperation();
    void fieldsStandInTheirOrder_data();
    void fieldsStandInTheirOrder();
};

void tst_ControlsBinaryInterface::publicClassAddsNeitherVirtualOperationNorField_data()
{
    QTest::addColumn<int>("positionBehind");
    QTest::addColumn<int>("size");
    QTest::newRow("CFxUIGroupBox") << PositionBehind<CFxUIGroupBox>() << int(sizeof(CFxUIGroupBox));
    QTest::newRow("CFxUIScrollableArea")
        << PositionBehind<CFxUIScrollableArea>() << int(sizeof(CFxUIScrollableArea));
    QTest::newRow("CFxUIDockWidget")
        << PositionBehind<CFxUIDockWidget>() << int(sizeof(CFxUIDockWidget));
    QTest::newRow("CFxUIStackedWidget")
        << PositionBehind<CFxUIStackedWidget>() << int(sizeof(CFxUIStackedWidget));
    QTest::newRow("CFxUICheckBox") << PositionBehind<CFxUICheckBox>() << int(sizeof(CFxUICheckBox));
    QTest::newRow("CFxUIRadioButton")
        << PositionBehind<CFxUIRadioButton>() << int(sizeof(CFxUIRadioButton));
    QTest::newRow("CFxUIRadioGroup")
        << PositionBehind<CFxUIRadioGroup>() << int(sizeof(CFxUIRadioGroup));
    QTest::newRow("CFxUIComboBox") << PositionBehind<CFxUIComboBox>() << int(sizeof(CFxUIComboBox));
    QTest::newRow("CFxUIListBox") << PositionBehind<CFxUIListBox>() << int(sizeof(CFxUIListBox));
    QTest::newRow("CFxUIImageView")
        << PositionBehind<CFxUIImageView>() << int(sizeof(CFxUIImageView));
    QTest::newRow("CFxUIPreviewView")
        << PositionBehind<CFxUIPreviewView>() << int(sizeof(CFxUIPreviewView));
}

void tst_ControlsBinaryInterface::publicClassAddsNeitherVirtualOperationNorField()
{
    QFETCH(int, positionBehind);
    QFETCH(int, size);
    QCOMPARE(positionBehind, PositionBehind<CFxUIBaseView>());
    QCOMPARE(size, int(sizeof(CFxUIBaseView)));
}

void tst_ControlsBinaryInterface::implementationAddsNoVirtualOperation_data()
{
    QTest::addColumn<int>("positionBehind");
    QTest::newRow("CFxUIGroupBoxImpl") << PositionBehind<CFxUIGroupBoxImpl>();
    QTest::newRow("CFxUIScrollableAreaImpl") << PositionBehind<CFxUIScrollableAreaImpl>();
    QTest::newRow("CFxUIDockWidgetImpl") << PositionBehind<CFxUIDockWidgetImpl>();
    QTest::newRow("CFxUIStackedWidgetImpl") << PositionBehind<CFxUIStackedWidgetImpl>();
    QTest::newRow("CFxUICheckBoxImpl") << PositionBehind<CFxUICheckBoxImpl>();
    QTest::newRow("CFxUIRadioButtonImpl") << PositionBehind<CFxUIRadioButtonImpl>();
    QTest::newRow("CFxUIRadioGroupImpl") << PositionBehind<CFxUIRadioGroupImpl>();
    QTest::newRow("CFxUIComboBoxImpl") << PositionBehind<CFxUIComboBoxImpl>();
    QTest::newRow("CFxUIListBoxImpl") << PositionBehind<CFxUIListBoxImpl>();
    QTest::newRow("CFxUIImageViewImpl") << PositionBehind<CFxUIImageViewImpl>();
}

void tst_ControlsBinaryInterface::implementationAddsNoVirtualOperation()
{
    QFETCH(int, positionBehind);
    QCOMPARE(positionBehind, PositionBehind<CFxUIBaseViewImpl>());
}

void tst_ControlsBinaryInterface::fieldsStandInTheirOrder_data()
{
    QTest::addColumn<bool>("inOrder");
    CFxUIObject object;
    QTest::newRow("CFxUIGroupBoxImpl") << IsInOrder(GroupBoxProbe(&object).Fields());
    QTest::newRow("CFxUIScrollableAreaImpl") << IsInOrder(ScrollableAreaProbe(&object).Fields());
    QTest::newRow("CFxUIDockWidgetImpl") << IsInOrder(DockWidgetProbe(&object).Fields());
    QTest::newRow("CFxUIStackedWidgetImpl") << IsInOrder(StackedWidgetProbe(&object).Fields());
    QTest::newRow("CFxUICheckBoxImpl") << IsInOrder(CheckBoxProbe(&object).Fields());
    QTest::newRow("CFxUIRadioButtonImpl") << IsInOrder(RadioButtonProbe(&object).Fields());
    QTest::newRow("CFxUIRadioGroupImpl") << IsInOrder(RadioGroupProbe(&object).Fields());
    QTest::newRow("CFxUIComboBoxImpl") << IsInOrder(ComboBoxProbe(&object).Fields());
    QTest::newRow("CFxUIListBoxImpl") << IsInOrder(ListBoxProbe(&object).Fields());
    QTest::newRow("CFxUIImageViewImpl") << IsInOrder(ImageViewProbe(&object).Fields());
    const CFxUIListBoxImpl::ItemDef item;
    QTest::newRow("ItemDef") << IsInOrder({ &item.data, &item.selected });
}

void tst_ControlsBinaryInterface::fieldsStandInTheirOrder()
{
    QFETCH(bool, inOrder);
    QVERIFY(inOrder);
}

int main(int argc, char **argv)
{
    return RunTest<tst_ControlsBinaryInterface>(argc, argv);
}

#include "tst_ControlsBinaryInterface.moc"
