#include "UI/Impl/qt/frontend/FxWidgetSpinner.h"

#include <QtGui/QMovie>
#include <QtGui/QPainter>
#include <QtGui/QPixmap>

CFxWidgetSpinner::CFxWidgetSpinner(QWidget *widget)
    : m_widget(widget)
{
}

CFxWidgetSpinner::~CFxWidgetSpinner()
{
    delete m_movie;
}

void CFxWidgetSpinner::StartSpinner()
{
    if (!m_widget)
        return;
    QImage image(m_widget->size(), QImage::Format_ARGB32);
    if (!image.isNull()) { // a widget without an area leaves nothing to paint on
        image.fill(Qt::transparent); // a new image holds no defined pixels
        QPainter painter(&image);
        m_widget->render(&painter, QPoint(0, 0), QRegion(),
                         QWidget::DrawWindowBackground | QWidget::DrawChildren);
    }
    m_snapshot = image;
    if (m_movie)
        return;
    m_movie = new QMovie(QStringLiteral(":/commonui/resources/icons/spinner.gif"), QByteArray());
    if (m_movie->isValid()) {
        connect(m_movie, SIGNAL(frameChanged(int)), this, SLOT(on_FrameChanged(int)));
        m_movie->start();
    }
}

void CFxWidgetSpinner::StopSpinner()
{
    m_widget = nullptr;
    if (!m_movie)
        return;
    disconnect(m_movie, SIGNAL(frameChanged(int)), this, SLOT(on_FrameChanged(int)));
    delete m_movie;
    m_movie = nullptr;
}

void CFxWidgetSpinner::paintEvent(QPaintEvent * /*event*/)
{
    if (!m_movie || !m_widget)
        return;
    const QPixmap frame = m_movie->currentPixmap();
    const QPixmap snapshot = QPixmap::fromImage(m_snapshot);
    QPainter painter(m_widget);
    painter.setOpacity(0.15);
    painter.drawPixmap(0, 0, snapshot);
    painter.setOpacity(1.0);
    // The frame's corner, not its middle, stands at the widget's middle. Intended.
    painter.drawPixmap(m_widget->width() / 2, m_widget->height() / 2, frame);
}

void CFxWidgetSpinner::on_FrameChanged(int /*frame*/)
{
    if (m_widget)
        m_widget->repaint();
}
