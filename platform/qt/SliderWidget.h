#pragma once

#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>

namespace ostrelum::qt_platform {

/// A slider that stands on its own. Desktop styles draw scroll bars for the edge of a frame, open
/// at the sides; only their measures are kept, so that the mouse finds what it sees.
class SliderWidget : public QScrollBar {
public:
    explicit SliderWidget(QWidget* parent) : QScrollBar(Qt::Horizontal, parent) {}

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void draw_end(QPainter& painter, const QRectF& button, bool leftwards) const;
    void draw_thumb(QPainter& painter, const QRectF& thumb) const;
};

} // namespace ostrelum::qt_platform
