#include "ImageList.h"

#include "QsError.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>
#include <QPolygonF>
#include <functional>

namespace qs {

namespace {

// Every icon is drawn on a 16 by 16 grid; the painter scales it to the pixmap.
constexpr int kSize = 32;

QIcon draw(const std::function<void(QPainter&)>& paint) {
    QPixmap pixmap(kSize, kSize);
    pixmap.fill(Qt::transparent);
    QPainter p(&pixmap);
    p.setRenderHint(QPainter::Antialiasing);
    p.scale(kSize / 16.0, kSize / 16.0);
    p.setPen(QPen(QColor(40, 40, 40), 0.8));
    paint(p);
    p.end();
    return QIcon(pixmap);
}

void folder(QPainter& p, const QColor& fill, bool open) {
    p.setBrush(fill.darker(115));
    p.drawPolygon(QPolygonF({{1, 4}, {6, 4}, {7.5, 5.5}, {15, 5.5}, {15, 14}, {1, 14}}));
    p.setBrush(fill);
    if (open)
        p.drawPolygon(QPolygonF({{3, 7.5}, {16, 7.5}, {13.5, 14}, {1, 14}}));
    else
        p.drawRect(QRectF(1, 7, 14, 7));
}

void page(QPainter& p, const QColor& fill) {
    p.setBrush(fill);
    p.drawPolygon(QPolygonF({{3, 1}, {10, 1}, {13, 4}, {13, 15}, {3, 15}}));
    p.drawLine(QPointF(10, 1), QPointF(10, 4));
    p.drawLine(QPointF(10, 4), QPointF(13, 4));
}

void lines(QPainter& p, double left, double right, double top, int count) {
    p.save();
    p.setPen(QPen(QColor(120, 120, 120), 0.8));
    for (int i = 0; i < count; ++i)
        p.drawLine(QPointF(left, top + i * 2), QPointF(right, top + i * 2));
    p.restore();
}

void check(QPainter& p, const QColor& color) {
    p.save();
    p.setPen(QPen(color, 2.0, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.drawPolyline(QPolygonF({{6, 10}, {8, 13}, {13, 6}}));
    p.restore();
}

void cross(QPainter& p, const QColor& color, double width) {
    p.save();
    p.setPen(QPen(color, width, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(QPointF(4, 4), QPointF(12, 12));
    p.drawLine(QPointF(12, 4), QPointF(4, 12));
    p.restore();
}

void badge(QPainter& p, const QColor& fill, int bars) {
    p.setBrush(fill);
    p.drawRoundedRect(QRectF(1.5, 2, 13, 12), 2, 2);
    p.save();
    p.setPen(QPen(Qt::white, 1.4));
    for (int i = 0; i < bars; ++i)
        p.drawLine(QPointF(4, 5 + i * 3), QPointF(12, 5 + i * 3));
    p.restore();
}

void disc(QPainter& p, const QColor& fill, double radius) {
    p.setBrush(fill);
    p.drawEllipse(QPointF(8, 8), radius, radius);
}

void arrow(QPainter& p, bool left) {
    p.setBrush(QColor(40, 140, 60));
    QPolygonF shape({{2, 8}, {8, 2}, {8, 5.5}, {14, 5.5}, {14, 10.5}, {8, 10.5}, {8, 14}});
    if (!left)
        for (QPointF& point : shape)
            point.setX(16 - point.x());
    p.drawPolygon(shape);
}

void ribbon(QPainter& p, const QColor& fill) {
    p.setBrush(fill);
    p.drawPolygon(QPolygonF({{4, 1}, {12, 1}, {12, 15}, {8, 11}, {4, 15}}));
}

void magnifier(QPainter& p) {
    p.setBrush(QColor(200, 230, 255));
    p.drawEllipse(QPointF(6.5, 6.5), 4.5, 4.5);
    p.save();
    p.setPen(QPen(QColor(90, 60, 30), 2.2, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(QPointF(10, 10), QPointF(14.5, 14.5));
    p.restore();
}

void cylinder(QPainter& p) {
    p.setBrush(QColor(150, 170, 200));
    QPainterPath body;
    body.addRect(QRectF(2, 4, 10, 9));
    p.drawPath(body);
    p.drawEllipse(QRectF(2, 11, 10, 4));
    p.drawEllipse(QRectF(2, 2, 10, 4));
}

void pages(QPainter& p, const QColor& back, const QColor& front) {
    p.setBrush(back);
    p.drawRect(QRectF(1.5, 1.5, 8, 10));
    p.setBrush(front);
    p.drawRect(QRectF(6, 4.5, 8, 10));
    lines(p, 7.5, 12.5, 7, 3);
}

void star(QPainter& p, const QColor& fill, QPointF centre, double r) {
    QPolygonF shape;
    for (int i = 0; i < 10; ++i) {
        const double radius = (i % 2 == 0) ? r : r * 0.45;
        const double angle = -M_PI / 2 + i * M_PI / 5;
        shape << QPointF(centre.x() + radius * std::cos(angle),
                         centre.y() + radius * std::sin(angle));
    }
    p.setBrush(fill);
    p.drawPolygon(shape);
}

} // namespace

ImageList& ImageList::instance() {
    static ImageList list;
    return list;
}

QIcon ImageList::ListImages(const QString& key) const {
    const auto it = mIcons.constFind(key);
    if (it == mIcons.constEnd())
        throw QsError(kErrElementNotFound, QString::fromLatin1(kAppSource),
                      QStringLiteral("Element not found"));
    return it.value();
}

void ImageList::add(const QString& key, const QIcon& icon) {
    mKeys.append(key);
    mIcons.insert(key, icon);
}

ImageList::ImageList() {
    const QColor yellow(240, 200, 80);
    const QColor paper(250, 250, 245);
    // Tree images.
    add("Categories", draw([](QPainter& p) {
            p.setBrush(QColor(90, 140, 220));
            p.drawRect(QRectF(1, 1, 9, 7));
            p.setBrush(QColor(230, 120, 60));
            p.drawRect(QRectF(4, 4.5, 9, 7));
            p.setBrush(QColor(90, 180, 90));
            p.drawRect(QRectF(6.5, 8, 8.5, 7));
        }));
    add("MainIco", draw([](QPainter& p) {
            p.setBrush(QColor(30, 70, 150));
            p.drawRoundedRect(QRectF(1, 1, 14, 14), 3, 3);
            p.setBrush(Qt::white);
            p.drawPolygon(QPolygonF({{11.5, 2.5}, {13.5, 4.5}, {6, 13}, {3, 13.5}, {3.5, 10.5}}));
        }));
    add("BookMarks", draw([](QPainter& p) {
            ribbon(p, QColor(200, 40, 40));
            p.translate(-2, 0);
            p.setBrush(QColor(240, 120, 120));
            p.drawRect(QRectF(3, 1, 3, 4));
        }));
    add("Find", draw(magnifier));
    add("ClosedFolder", draw([yellow](QPainter& p) { folder(p, yellow, false); }));
    add("OpenFolder", draw([yellow](QPainter& p) { folder(p, yellow, true); }));
    add("Article", draw([paper](QPainter& p) {
            page(p, paper);
            lines(p, 5, 11, 6, 4);
        }));
    add("Component", draw([](QPainter& p) {
            p.setBrush(QColor(60, 160, 150));
            p.drawRect(QRectF(2, 4, 12, 10));
            p.setBrush(QColor(170, 230, 220));
            p.drawEllipse(QPointF(8, 9), 2.5, 2.5);
            p.drawRect(QRectF(6, 1.5, 4, 2.5));
        }));
    add("TestedSnippet", draw([paper](QPainter& p) {
            page(p, paper);
            check(p, QColor(20, 150, 40));
        }));
    add("UnTestedSnippet", draw([paper](QPainter& p) {
            page(p, paper);
            p.save();
            p.setPen(QPen(QColor(200, 40, 40), 1.6, Qt::SolidLine, Qt::RoundCap));
            p.drawLine(QPointF(6, 8), QPointF(10, 12));
            p.drawLine(QPointF(10, 8), QPointF(6, 12));
            p.restore();
        }));
    add("Tip", draw([](QPainter& p) {
            p.setBrush(QColor(255, 230, 90));
            p.drawEllipse(QPointF(8, 6), 4.5, 4.5);
            p.setBrush(QColor(150, 150, 150));
            p.drawRect(QRectF(6, 10.5, 4, 4));
        }));
    add("Class3", draw([](QPainter& p) { badge(p, QColor(130, 70, 170), 3); }));
    add("Module", draw([](QPainter& p) { badge(p, QColor(40, 100, 190), 2); }));
    add("Constant", draw([](QPainter& p) {
            p.setBrush(QColor(30, 150, 150));
            p.drawRect(QRectF(4, 4, 8, 8));
        }));
    add("Type1", draw([](QPainter& p) {
            p.setBrush(QColor(235, 140, 40));
            p.drawPolygon(QPolygonF({{8, 2}, {14.5, 14}, {1.5, 14}}));
        }));
    add("Enum", draw([](QPainter& p) {
            p.setBrush(QColor(220, 170, 30));
            for (int i = 0; i < 3; ++i)
                p.drawEllipse(QPointF(4 + i * 4, 8), 1.6, 1.6);
        }));
    add("API", draw([](QPainter& p) {
            p.setBrush(QColor(90, 90, 100));
            p.drawPolygon(QPolygonF({{4, 2}, {12, 2}, {15, 8}, {12, 14}, {4, 14}, {1, 8}}));
        }));
    add("Property", draw([](QPainter& p) {
            p.setBrush(QColor(60, 170, 70));
            p.drawPolygon(QPolygonF({{8, 1.5}, {14.5, 8}, {8, 14.5}, {1.5, 8}}));
        }));
    add("Function", draw([](QPainter& p) { disc(p, QColor(200, 50, 160), 5.5); }));
    add("Sub", draw([](QPainter& p) { disc(p, QColor(40, 170, 220), 5.5); }));
    // Tool bar images.
    add("OpenDataBase", draw([](QPainter& p) {
            cylinder(p);
            p.setBrush(QColor(40, 140, 60));
            p.drawPolygon(QPolygonF({{11, 6}, {15.5, 10}, {11, 14}}));
        }));
    add("Category", draw([yellow](QPainter& p) {
            folder(p, yellow.lighter(110), false);
            star(p, QColor(60, 110, 210), QPointF(8, 10.5), 3.5);
        }));
    add("Folder", draw([yellow](QPainter& p) {
            folder(p, yellow, false);
            p.save();
            p.setPen(QPen(QColor(20, 120, 20), 1.6));
            p.drawLine(QPointF(8, 8.5), QPointF(8, 13));
            p.drawLine(QPointF(5.75, 10.75), QPointF(10.25, 10.75));
            p.restore();
        }));
    add("SourceCode", draw([paper](QPainter& p) {
            page(p, paper);
            p.save();
            p.setPen(QPen(QColor(40, 90, 180), 1.3));
            p.drawPolyline(QPolygonF({{7, 7}, {5, 9.5}, {7, 12}}));
            p.drawPolyline(QPolygonF({{9, 7}, {11, 9.5}, {9, 12}}));
            p.restore();
        }));
    add("SourceFile", draw([](QPainter& p) {
            page(p, QColor(190, 215, 245));
            lines(p, 5, 11, 7, 3);
        }));
    add("Delete", draw([](QPainter& p) { cross(p, QColor(210, 30, 30), 2.6); }));
    add("BookMark", draw([](QPainter& p) { ribbon(p, QColor(230, 80, 50)); }));
    add("Edit", draw([](QPainter& p) {
            p.setBrush(QColor(240, 180, 60));
            p.drawPolygon(QPolygonF({{11, 1.5}, {14.5, 5}, {5.5, 14}, {2, 14}, {2, 10.5}}));
        }));
    add("ReName2", draw([](QPainter& p) {
            p.setBrush(Qt::white);
            p.drawRect(QRectF(1, 4, 14, 8));
            p.save();
            p.setPen(QPen(QColor(30, 30, 30), 1.2));
            p.drawLine(QPointF(10, 2.5), QPointF(10, 13.5));
            p.restore();
            lines(p, 3, 8.5, 8, 1);
        }));
    add("Back", draw([](QPainter& p) { arrow(p, true); }));
    add("Forward", draw([](QPainter& p) { arrow(p, false); }));
    add("Copy", draw([paper](QPainter& p) { pages(p, paper, paper); }));
    add("AdvCopy", draw([paper](QPainter& p) {
            pages(p, QColor(200, 225, 250), paper);
            star(p, QColor(230, 160, 20), QPointF(4.5, 4.5), 3.5);
        }));
    add("Print", draw([](QPainter& p) {
            p.setBrush(Qt::white);
            p.drawRect(QRectF(4, 1.5, 8, 5));
            p.setBrush(QColor(120, 120, 130));
            p.drawRoundedRect(QRectF(1, 6, 14, 6), 1.5, 1.5);
            p.setBrush(Qt::white);
            p.drawRect(QRectF(4, 10, 8, 4.5));
        }));
}

} // namespace qs
