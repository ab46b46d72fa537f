// The peers: what one writes in Qt alone for the widget that a control makes.

#pragma once

#include <QtCore/QTimer>
#include <QtWidgets/QAction>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDialog>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QMenu>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QSlider>
#include <QtWidgets/QTabWidget>
#include <QtWidgets/QTextEdit>
#include <QtWidgets/QVBoxLayout>

struct BareLabel : QLabel {
    BareLabel() { setStyleSheet(QStringLiteral("QLabel { }")); }
};

struct BarePushButton : QPushButton {
    BarePushButton();

    int heard = 0;

protected:
    void enterEvent(QEvent *event) override;
    void leaveEvent(QEvent *event) override;
};

struct BareCheckBox : QCheckBox {
    BareCheckBox();

    int heard = 0;
    int state = 0;
};

struct BareRadioButton : QRadioButton {
    BareRadioButton();

    int heard = 0;
};

struct BareComboBox : QComboBox {
    BareComboBox();

    int heard = 0;
    int index = -1;
    QString text;
};

struct BareListBox : QListWidget {
    BareListBox() { setStyleSheet(QStringLiteral("QListWidget { }")); }
};

struct BareSlider : QSlider {
    BareSlider();

    int heard = 0;
    int number = 0;
};

struct BareTextEdit : QLineEdit {
    BareTextEdit();

    int heard = 0;
    QString stored;
};

struct BareTextView : QTextEdit {
    BareTextView();

    int heard = 0;
    QString stored;

protected:
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
};

struct BareGroupBox : QGroupBox {
    BareGroupBox();

    QVBoxLayout *const box;

protected:
    void paintEvent(QPaintEvent *event) override;
};

struct BareColumn : QGroupBox {
    BareColumn();

    QVBoxLayout *const box;
    int heard = 0;

protected:
    void keyPressEvent(QKeyEvent *event) override;
};

struct BareRow : QGroupBox {
    BareRow();

    QHBoxLayout *const box;
};

struct BareScrollArea : QScrollArea {
    BareScrollArea() { setStyleSheet(QStringLiteral("QScrollView, QScrollArea { }")); }
};

struct BareTabs : QTabWidget {
    BareTabs() { setStyleSheet(QStringLiteral("QTabWidget { }")); }
};

struct BareMenu : QMenu {
    BareMenu() { setStyleSheet(QStringLiteral("QMenu { }")); }
};

struct BareAction : QAction {
    BareAction();

    int heard = 0;
};

struct BareButtonBox : QDialogButtonBox {
    BareButtonBox();

    int heard = 0;
    int result = 0;
};

struct BareDialog : QDialog {
    BareDialog();

    /// Makes the content at the first call.
    int exec() override;

    BareColumn *content = nullptr;
};
