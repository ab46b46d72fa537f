#include "Bare.h"

#include <QtCore/QFile>
#include <QtCore/QTextStream>
#include <QtGui/QFocusEvent>
#include <QtGui/QKeyEvent>
#include <QtGui/QPainter>

BarePushButton::BarePushButton()
{
    setStyleSheet(QStringLiteral("QPushButton { }"));
    setAutoDefault(true);
    connect(this, &QPushButton::clicked, this, [this] { ++heard; });
}

void BarePushButton::enterEvent(QEvent *event)
{
    ++heard;
    QPushButton::enterEvent(event);
}

void BarePushButton::leaveEvent(QEvent *event)
{
    ++heard;
    QPushButton::leaveEvent(event);
}

BareCheckBox::BareCheckBox()
{
    setStyleSheet(QStringLiteral("QCheckBox { }"));
    setFixedHeight(25);
    connect(this, &QCheckBox::stateChanged, this, [this](int newState) {
        state = newState;
        ++heard;
    });
}

BareRadioButton::BareRadioButton()
{
    setStyleSheet(QStringLiteral("QRadioButton { }"));
    connect(this, &QRadioButton::clicked, this, [this] { ++heard; });
}

BareComboBox::BareComboBox()
{
    setStyleSheet(QStringLiteral("QComboBox { }"));
    connect(this, qOverload<int>(&QComboBox::currentIndexChanged), this, [this](int newIndex) {
        index = newIndex;
        text = itemText(newIndex);
        ++heard;
    });
}

BareSlider::BareSlider()
{
    setStyleSheet(QStringLiteral("QSlider { }"));
    setOrientation(Qt::Horizontal);
    setFixedHeight(25);
    connect(this, &QSlider::valueChanged, this, [this](int value) {
        number = value;
        ++heard;
    });
}

BareTextEdit::BareTextEdit()
{
    setStyleSheet(QStringLiteral("QLineEdit { }"));
    connect(this, &QLineEdit::textChanged, this, [this](const QString &text) {
        stored = text;
        ++heard;
    });
}

BareTextView::BareTextView()
{
    setStyleSheet(QStringLiteral("QTextEdit { }"));
    setTabChangesFocus(true);
    setAcceptRichText(false);
    connect(this, &QTextEdit::textChanged, this, [this] {
        stored = toPlainText();
        ++heard;
    });
}

void BareTextView::focusInEvent(QFocusEvent *event)
{
    ++heard;
    QTextEdit::focusInEvent(event);
}

void BareTextView::focusOutEvent(QFocusEvent *event)
{
    ++heard;
    QTextEdit::focusOutEvent(event);
}

BareGroupBox::BareGroupBox()
    : box(new QVBoxLayout(this))
{
    setStyleSheet(QStringLiteral("QGroupBox { }"));
}

void BareGroupBox::paintEvent(QPaintEvent *event)
{
    QGroupBox::paintEvent(event);
    QPainter(this).drawRect(0, 0, width() - 1, height() - 1);
}

BareColumn::BareColumn()
    : box(new QVBoxLayout(this))
{
    setStyleSheet(QStringLiteral("QGroupBox { border: none; padding: 0px; }"));
    box->setContentsMargins(0, 0, 0, 0);
}

void BareColumn::keyPressEvent(QKeyEvent *event)
{
    ++heard;
    QGroupBox::keyPressEvent(event);
}

BareRow::BareRow()
    : box(new QHBoxLayout(this))
{
    setStyleSheet(QStringLiteral("QGroupBox{ border: none; padding: 0px; }"));
    box->setContentsMargins(0, 0, 0, 0);
}

BareAction::BareAction()
    : QAction(nullptr)
{
    connect(this, &QAction::triggered, this, [this] { ++heard; });
}

BareButtonBox::BareButtonBox()
    : QDialogButtonBox(Ok | Cancel | Help)
{
    setMinimumHeight(30);
    connect(this, &QDialogButtonBox::accepted, this, [this] { result = 1; });
    connect(this, &QDialogButtonBox::rejected, this, [this] { result = 0; });
    connect(this, &QDialogButtonBox::clicked, this, [this] { ++heard; });
}

BareDialog::BareDialog()
    : QDialog(nullptr, Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint)
{
    QFile file(QStringLiteral(":/commonui/resources/qss/light_style.qss"));
    if (file.open(QIODevice::ReadOnly))
        setStyleSheet(QTextStream(&file).readAll());
}

int BareDialog::exec()
{
    if (!content) {
        content = new BareColumn;
        auto *box = new QVBoxLayout(this);
        box->setContentsMargins(0, 0, 0, 0);
        box->addWidget(content);
    }
    return QDialog::exec();
}
