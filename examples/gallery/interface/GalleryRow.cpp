#include "interface/GalleryRow.h"

#include "UI/FxUILabel.h"

struct GalleryRow::State {
    IGalleryHost *host;
    QString object;
    CFxUILabel *answer;
    std::function<QString()> answers;
    QString fired; ///< the last signal with its arguments
    int count = 0; ///< of all signals of the row
};

GalleryRow::GalleryRow(IGalleryHost *host, const QString &object, CFxUILabel *answer,
                       std::function<QString()> answers)
    : m_state(std::make_shared<State>())
{
    m_state->host = host;
    m_state->object = object;
    m_state->answer = answer;
    m_state->answers = std::move(answers);
    Refresh();
}

void GalleryRow::Fired(const QString &name, const QString &arguments)
{
    m_state->host->LogSignal(m_state->object, name, arguments);
    m_state->fired = QStringLiteral("%1(%2)").arg(name, arguments);
    ++m_state->count;
    Refresh();
}

void GalleryRow::Refresh()
{
    QStringList lines;
    if (m_state->count > 0)
        lines += QStringLiteral("<b>%1</b> %2\u00d7")
                     .arg(m_state->fired.toHtmlEscaped(), QString::number(m_state->count));
    if (m_state->answers)
        lines +=
            m_state->answers().toHtmlEscaped().replace(QLatin1Char('\n'), QStringLiteral("<br>"));
    // Rich text in every case, so that an answer with angle brackets shows as it is.
    m_state->answer->setText(
        QStringLiteral("<span>%1</span>").arg(lines.join(QStringLiteral("<br>"))));
}
