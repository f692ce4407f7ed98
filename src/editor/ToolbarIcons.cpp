#include "editor/ToolbarIcons.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

#include <cmath>

namespace zentor {

namespace {

// Every icon is drawn on a 24 x 24 grid.
const QColor Ink(60, 64, 72);
const QColor Paper(250, 250, 252);
const QColor Blue(47, 110, 186);
const QColor Green(46, 150, 90);
const QColor Red(200, 60, 55);
const QColor Amber(232, 176, 64);

void Page(QPainter& p, const QRectF& r) {
    QPainterPath path;
    path.moveTo(r.left(), r.top());
    path.lineTo(r.right() - 5, r.top());
    path.lineTo(r.right(), r.top() + 5);
    path.lineTo(r.right(), r.bottom());
    path.lineTo(r.left(), r.bottom());
    path.closeSubpath();
    p.setPen(QPen(Ink, 1.2));
    p.setBrush(Paper);
    p.drawPath(path);
    p.drawLine(QPointF(r.right() - 5, r.top()), QPointF(r.right() - 5, r.top() + 5));
    p.drawLine(QPointF(r.right() - 5, r.top() + 5), QPointF(r.right(), r.top() + 5));
}

void Arrow(QPainter& p, QPointF from, QPointF to, const QColor& c) {
    p.setPen(QPen(c, 2.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.drawLine(from, to);
    const double a = std::atan2(to.y() - from.y(), to.x() - from.x());
    const double s = 5.5;
    p.drawLine(to, to - QPointF(s * std::cos(a - 0.7), s * std::sin(a - 0.7)));
    p.drawLine(to, to - QPointF(s * std::cos(a + 0.7), s * std::sin(a + 0.7)));
}

void Stack(QPainter& p, bool frontOnTop) {
    p.setPen(QPen(Ink, 1.2));
    p.setBrush(frontOnTop ? QColor(200, 205, 214) : Blue.lighter(150));
    p.drawRect(QRectF(3.5, 9.5, 11, 11));
    p.setBrush(frontOnTop ? Blue.lighter(150) : QColor(200, 205, 214));
    p.drawRect(QRectF(7.5, 5.5, 11, 11));
}

void Draw(QPainter& p, int command) {
    switch (command) {
    case 2: // new
        Page(p, QRectF(5.5, 2.5, 13, 19));
        p.setPen(QPen(Amber, 2));
        p.drawLine(QPointF(17, 15), QPointF(17, 22));
        p.drawLine(QPointF(13.5, 18.5), QPointF(20.5, 18.5));
        break;
    case 3: { // open
        p.setPen(QPen(Ink, 1.2));
        p.setBrush(Amber.darker(115));
        p.drawRect(QRectF(2.5, 5.5, 19, 14));
        p.setBrush(Amber);
        QPainterPath front;
        front.moveTo(2.5, 19.5);
        front.lineTo(6, 10.5);
        front.lineTo(22.5, 10.5);
        front.lineTo(19.5, 19.5);
        front.closeSubpath();
        p.drawPath(front);
        break;
    }
    case 4: // save
        p.setPen(QPen(Ink, 1.2));
        p.setBrush(Blue);
        p.drawRoundedRect(QRectF(3.5, 3.5, 17, 17), 2, 2);
        p.setBrush(Paper);
        p.drawRect(QRectF(7.5, 3.5, 9, 6));
        p.drawRect(QRectF(6.5, 13.5, 11, 7));
        break;
    case 6: // insert image
        p.setPen(QPen(Ink, 1.2));
        p.setBrush(QColor(214, 233, 250));
        p.drawRect(QRectF(2.5, 4.5, 19, 15));
        p.setBrush(Green);
        p.drawPolygon(QPolygonF(
            {QPointF(3, 19), QPointF(9, 11), QPointF(13, 16), QPointF(16, 13), QPointF(21, 19)}));
        p.setBrush(Amber);
        p.setPen(Qt::NoPen);
        p.drawEllipse(QPointF(16.5, 8.5), 2.2, 2.2);
        break;
    case 7: { // insert text
        QFont f(QStringLiteral("Liberation Serif"));
        f.setPixelSize(21);
        f.setBold(true);
        p.setFont(f);
        p.setPen(Ink);
        p.drawText(QRectF(0, 0, 24, 24), Qt::AlignCenter, QStringLiteral("A"));
        p.setPen(QPen(Blue, 2));
        p.drawLine(QPointF(3, 22), QPointF(21, 22));
        break;
    }
    case 8: // delete
        p.setPen(QPen(Red, 3.2, Qt::SolidLine, Qt::RoundCap));
        p.drawLine(QPointF(6, 6), QPointF(18, 18));
        p.drawLine(QPointF(18, 6), QPointF(6, 18));
        break;
    case 10: // move to top
        Stack(p, true);
        Arrow(p, QPointF(20, 22), QPointF(20, 12), Green);
        break;
    case 11: // move to bottom
        Stack(p, false);
        Arrow(p, QPointF(20, 12), QPointF(20, 22), Red);
        break;
    case 12: // previous tab
        Arrow(p, QPointF(20, 12), QPointF(4, 12), Blue);
        break;
    case 13: // next tab
        Arrow(p, QPointF(4, 12), QPointF(20, 12), Blue);
        break;
    case 15: // the data file for the player
        Page(p, QRectF(4.5, 2.5, 15, 19));
        p.setPen(Qt::NoPen);
        p.setBrush(Green);
        p.drawPolygon(QPolygonF({QPointF(9, 9), QPointF(9, 18), QPointF(16.5, 13.5)}));
        break;
    case 16: // the self-running résumé
        p.setPen(QPen(Ink, 1.2));
        p.setBrush(QColor(40, 44, 52));
        p.drawRoundedRect(QRectF(2.5, 3.5, 19, 14), 1.5, 1.5);
        p.drawLine(QPointF(12, 17.5), QPointF(12, 20.5));
        p.drawLine(QPointF(7, 20.5), QPointF(17, 20.5));
        p.setPen(Qt::NoPen);
        p.setBrush(Green.lighter(130));
        p.drawPolygon(QPolygonF({QPointF(10, 6.5), QPointF(10, 14.5), QPointF(16, 10.5)}));
        break;
    case 17: { // setting
        p.setPen(Qt::NoPen);
        p.setBrush(Ink);
        for (int i = 0; i < 8; ++i) {
            p.save();
            p.translate(12, 12);
            p.rotate(i * 45);
            p.drawRect(QRectF(-2, -10.5, 4, 5));
            p.restore();
        }
        p.drawEllipse(QPointF(12, 12), 7.5, 7.5);
        p.setBrush(Paper);
        p.drawEllipse(QPointF(12, 12), 3, 3);
        break;
    }
    default:
        break;
    }
}

} // namespace

QIcon ToolbarIcon(int command) {
    QIcon icon;
    for (int scale : {1, 2}) {
        QPixmap pm(24 * scale, 24 * scale);
        pm.fill(Qt::transparent);
        QPainter p(&pm);
        p.setRenderHint(QPainter::Antialiasing);
        p.scale(scale, scale);
        Draw(p, command);
        p.end();
        icon.addPixmap(pm);
    }
    return icon;
}

} // namespace zentor
