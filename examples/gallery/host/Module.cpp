#include "Module.h"

#include "Failure.h"
#include "UI/FxUIDialog.h"

#include <QtCore/QEvent>
#include <QtCore/QFileInfo>
#include <QtWidgets/QLayout>
#include <QtWidgets/QWidget>

namespace {

// Wide enough for the columns of a panel; a panel that needs more gets it.
constexpr int LeastWidth = 860;
constexpr int LeastHeight = 200;

/// Calls a function once, when the window is about to be shown for the first time: the dialog's
/// content is there then.
class AtFirstShow : public QObject {
public:
    AtFirstShow(QWidget *window, std::function<void()> function)
        : QObject(window)
        , m_function(std::move(function))
    {
        window->installEventFilter(this);
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Polish)
            m_function();
        return false;
    }

private:
    std::function<void()> m_function;
};

} // namespace

Module::Module(const QString &moduleFile)
    : file(moduleFile)
{
}

Module::~Module()
{
    DropDialog();
}

void Module::MakeDialog(std::function<CFxUIDialog *()> create)
{
    m_create = std::move(create);
    TakeOver(m_create());
}

void Module::Renew()
{
    DropDialog();
    try {
        TakeOver(m_create());
    } catch (...) {
        Refuse(QStringLiteral("made no second dialog: ") + CurrentFailure());
    }
}

void Module::Refuse(const QString &reason)
{
    refusal = reason;
    DropDialog();
}

QString Module::FileName() const
{
    return QFileInfo(file).fileName();
}

int Module::Run()
{
    return m_dialog->exec(true);
}

void Module::Close()
{
    m_dialog->done(0);
}

void Module::SetLook(Look look)
{
    m_look = look;
    if (QWidget *window = Window())
        ApplySheet(window, look, m_lightSheet);
    Fit();
}

// The size is the content's own and not what is left over on the screen, so that it is the same
// everywhere.
void Module::Fit()
{
    QWidget *window = Window();
    QLayout *layout = window ? window->layout() : nullptr;
    if (!layout)
        return;
    layout->activate();
    const QSize hint = layout->totalSizeHint();
    const int width = qMax(LeastWidth, hint.width());
    const int height =
        layout->hasHeightForWidth() ? layout->totalHeightForWidth(width) : hint.height();
    window->resize(width, qMax(LeastHeight, height));
}

QWidget *Module::Window() const
{
    return m_dialog ? qobject_cast<QWidget *>(m_dialog->getHandle()) : nullptr;
}

void Module::TakeOver(CFxUIDialog *dialog)
{
    m_dialog.reset(dialog);
    QWidget *window = Window();
    if (!window)
        return;
    m_lightSheet = window->styleSheet();
    window->resize(LeastWidth, LeastHeight);
    new AtFirstShow(window, [this] { Fit(); });
    SetLook(m_look);
}

// A dialog leaves its window behind, so the host takes care of that.
void Module::DropDialog()
{
    QWidget *window = Window();
    m_dialog.reset();
    delete window;
}
