// SPDX-License-Identifier: MIT
#include "dialog/page/pdf_content.h"

namespace halvern {

namespace {

QByteArray matrix(const QTransform& t)
{
    return pdfNumber(t.m11()) + ' ' + pdfNumber(t.m12()) + ' ' + pdfNumber(t.m21()) + ' ' +
           pdfNumber(t.m22()) + ' ' + pdfNumber(t.dx()) + ' ' + pdfNumber(t.dy());
}

QByteArray point(const QPointF& at)
{
    return pdfNumber(at.x()) + ' ' + pdfNumber(at.y()) + ' ';
}

QByteArray rectangle(const QRectF& rect)
{
    return point(rect.topLeft()) + pdfNumber(rect.width()) + ' ' + pdfNumber(rect.height()) + " re ";
}

} // namespace

QByteArray pdfNumber(double value)
{
    return QByteArray::number(value, 'f', 3);
}

PdfContent::PdfContent(const QSizeF& paper) : flip_(1.0, 0.0, 0.0, -1.0, 0.0, paper.height()) {}

void PdfContent::addPicture(int number, const QRectF& clip, const QTransform& placement)
{
    const QTransform flip(1.0, 0.0, 0.0, -1.0, 0.0, 1.0);
    bytes_ += "q " + rectangle(flip_.mapRect(clip)) + "W n " + matrix(flip * placement * flip_) + " cm /I" +
              QByteArray::number(number) + " Do Q\n";
}

void PdfContent::addLine(const QLineF& line, double width)
{
    bytes_ +=
        pdfNumber(width) + " w " + point(flip_.map(line.p1())) + "m " + point(flip_.map(line.p2())) + "l S\n";
}

void PdfContent::addFrame(const QRectF& rect, double width)
{
    bytes_ += pdfNumber(width) + " w " + rectangle(flip_.mapRect(rect)) + "S\n";
}

void PdfContent::addShapes(const QPainterPath& shapes)
{
    const QPainterPath path = flip_.map(shapes);
    for (int i = 0; i < path.elementCount(); ++i) {
        const QPainterPath::Element element = path.elementAt(i);
        bytes_ += point(element);
        if (element.type == QPainterPath::MoveToElement) {
            bytes_ += "m ";
        } else if (element.type == QPainterPath::LineToElement) {
            bytes_ += "l ";
        } else {
            bytes_ += point(path.elementAt(i + 1)) + point(path.elementAt(i + 2)) + "c ";
            i += 2;
        }
    }
    bytes_ += path.isEmpty() ? "" : "f*\n";
}

} // namespace halvern
