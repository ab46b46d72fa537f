#include "MainWindow.h"

#include "Failure.h"
#include "SignalLog.h"

#include <QtCore/QSignalBlocker>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLabel>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QTreeWidget>

namespace {

// The oldest lines go when there are more.
constexpr int MostLogLines = 2000;

constexpr int ItemHeight = 24;

QLabel *MakeHeading(const QString &text)
{
    return new QLabel(QStringLiteral("<b>%1</b>").arg(text.toHtmlEscaped()));
}

QListWidget *MakeList()
{
    auto *list = new QListWidget;
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list->setWordWrap(true);
    return list;
}

} // namespace

MainWindow::MainWindow(Modules &modules, SignalLog &log, const QString &folder)
    : m_modules(modules)
    , m_log(log)
    , m_folder(folder)
{
    setWindowTitle(QStringLiteral("CommonUI Gallery"));
    auto *sides = new QHBoxLayout;
    sides->setSpacing(18);
    sides->addWidget(MakePanelSide());
    sides->addWidget(MakeLogSide(), 1);
    auto *content = new QWidget;
    auto *column = new QVBoxLayout(content);
    column->setContentsMargins(18, 18, 18, 18);
    column->setSpacing(12);
    column->addLayout(sides, 1);
    column->addWidget(MakeLookBar());
    setCentralWidget(content);
    resize(960, 640);

    connect(&m_log, &SignalLog::logged, this, &MainWindow::AddLogLine);
    FillLists();
    m_panels->setCurrentRow(0);
    if (const Module *hello = FindModule(m_modules, QStringLiteral("hello")))
        SelectPanel(*hello);
    SetLook(Look::Light);
}

void MainWindow::SetLook(Look look)
{
    const QSignalBlocker blocker(m_dark);
    (look == Look::Dark ? m_dark : m_light)->setChecked(true);
    ApplyPalette(look);
    ApplySheet(this, look, {});
    for (const auto &module : m_modules)
        module->SetLook(look);
}

void MainWindow::SelectPanel(const Module &module)
{
    for (int row = 0; row < m_panels->count(); ++row) {
        if (m_panels->item(row)->data(Qt::UserRole).toString() == module.name)
            m_panels->setCurrentRow(row);
    }
}

Module *MainWindow::Selected() const
{
    const QListWidgetItem *item = m_panels->currentItem();
    return item ? FindModule(m_modules, item->data(Qt::UserRole).toString()) : nullptr;
}

void MainWindow::ClearLog()
{
    m_lines->clear();
    m_log.Restart();
}

void MainWindow::RunSelected()
{
    if (Module *module = Selected())
        Run(*module);
}

void MainWindow::Run(Module &module)
{
    if (m_running)
        return;
    m_running = true;
    try {
        m_log.LogSignal(module.name, QStringLiteral("exec"), {});
        const int result = module.Run();
        m_log.LogSignal(module.name, QStringLiteral("closed"), QString::number(result));
    } catch (...) {
        const QString failure = CurrentFailure();
        m_log.LogSignal(module.name, QStringLiteral("failed"), failure);
        module.Refuse(QStringLiteral("failed while running: ") + failure);
        FillLists();
    }
    m_running = false;
}

QWidget *MainWindow::MakePanelSide()
{
    m_panels = MakeList();
    m_panels->setObjectName(QStringLiteral("panels"));
    m_refused = MakeList();
    m_refused->setObjectName(QStringLiteral("refused"));
    m_refused->setSpacing(2);
    m_refused->setSelectionMode(QAbstractItemView::NoSelection);
    connect(m_panels, &QListWidget::currentRowChanged, this, &MainWindow::ShowSelected);
    connect(m_panels, &QListWidget::itemActivated, this, &MainWindow::RunSelected);

    auto *side = new QWidget;
    side->setFixedWidth(270);
    auto *column = new QVBoxLayout(side);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(MakeHeading(QStringLiteral("Panels")));
    column->addWidget(m_panels, 5);
    column->addSpacing(8);
    column->addWidget(MakeHeading(QStringLiteral("Not loaded")));
    column->addWidget(m_refused, 1);
    return side;
}

QWidget *MainWindow::MakeLogSide()
{
    m_title = new QLabel;
    m_summary = new QLabel;
    m_summary->setWordWrap(true);
    m_open = new QPushButton(QStringLiteral("&Open panel"));
    m_open->setObjectName(QStringLiteral("open"));
    m_open->setMinimumSize(120, 28);
    connect(m_open, &QPushButton::clicked, this, &MainWindow::RunSelected);

    m_lines = new QTreeWidget;
    m_lines->setObjectName(QStringLiteral("log"));
    m_lines->setHeaderLabels({ QStringLiteral("No."), QStringLiteral("Object"),
                               QStringLiteral("Signal"), QStringLiteral("Arguments") });
    m_lines->setRootIsDecorated(false);
    m_lines->setAlternatingRowColors(true);
    m_lines->setUniformRowHeights(true);
    m_lines->header()->resizeSection(0, 56);
    m_lines->header()->resizeSection(1, 190);
    m_lines->header()->resizeSection(2, 160);
    auto *clear = new QPushButton(QStringLiteral("&Clear"));
    clear->setObjectName(QStringLiteral("clear"));
    clear->setMinimumSize(80, 28);
    connect(clear, &QPushButton::clicked, this, &MainWindow::ClearLog);

    auto *openRow = new QHBoxLayout;
    openRow->addWidget(m_open);
    openRow->addStretch();
    auto *logRow = new QHBoxLayout;
    logRow->addWidget(MakeHeading(QStringLiteral("Signals")));
    logRow->addStretch();
    logRow->addWidget(clear);

    auto *side = new QWidget;
    auto *column = new QVBoxLayout(side);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(m_title);
    column->addWidget(m_summary);
    column->addLayout(openRow);
    column->addSpacing(8);
    column->addLayout(logRow);
    column->addWidget(m_lines, 1);
    return side;
}

QWidget *MainWindow::MakeLookBar()
{
    m_light = new QRadioButton(QStringLiteral("&Light"));
    m_light->setObjectName(QStringLiteral("light"));
    m_dark = new QRadioButton(QStringLiteral("&Dark"));
    m_dark->setObjectName(QStringLiteral("dark"));
    connect(m_dark, &QRadioButton::toggled, this,
            [this](bool dark) { SetLook(dark ? Look::Dark : Look::Light); });

    auto *bar = new QWidget;
    auto *row = new QHBoxLayout(bar);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(12);
    row->addWidget(MakeHeading(QStringLiteral("Look")));
    row->addWidget(m_light);
    row->addWidget(m_dark);
    row->addStretch();
    return bar;
}

void MainWindow::FillLists()
{
    m_panels->clear();
    m_refused->clear();
    for (const auto &module : m_modules) {
        if (module->IsLoaded()) {
            auto *item = new QListWidgetItem(module->title, m_panels);
            item->setData(Qt::UserRole, module->name);
            item->setSizeHint(QSize(0, ItemHeight));
        } else {
            m_refused->addItem(module->FileName() + QLatin1Char(' ') + module->refusal);
        }
    }
    if (m_refused->count() == 0)
        m_refused->addItem(m_modules.empty() ? QStringLiteral("No modules in ") + m_folder
                                             : QStringLiteral("All modules loaded."));
    ShowSelected();
}

void MainWindow::ShowSelected()
{
    const Module *module = Selected();
    m_open->setEnabled(module != nullptr);
    m_title->setText(module ? QStringLiteral("<b>%1</b>").arg(module->title.toHtmlEscaped())
                            : QStringLiteral("<b>No panel selected</b>"));
    m_summary->setText(module ? module->summary : QString());
}

void MainWindow::AddLogLine(int number, const QString &object, const QString &signal,
                            const QString &arguments)
{
    if (m_lines->topLevelItemCount() >= MostLogLines)
        delete m_lines->topLevelItem(0);
    auto *line =
        new QTreeWidgetItem(m_lines, { QString::number(number), object, signal, arguments });
    m_lines->scrollToItem(line);
}
