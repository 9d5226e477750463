// The discs of an SVG file, wherever its groups have moved them.
#pragma once

#include <QList>
#include <QRectF>
#include <QTransform>
#include <QXmlStreamReader>

// "matrix(a,b,c,d,e,f)"; any other text moves nothing.
inline QTransform TransformOf(QStringView text) {
    if (!text.startsWith(u"matrix(") || !text.endsWith(u')'))
        return {};
    QList<double> numbers;
    for (const QStringView number : text.sliced(7).chopped(1).split(u','))
        numbers += number.toDouble();
    return numbers.size() == 6
               ? QTransform(numbers[0], numbers[1], numbers[2], numbers[3], numbers[4], numbers[5])
               : QTransform();
}

// The bounds of every filled circle and ellipse, in the units of the picture.
inline QList<QRectF> DotsOfSvg(const QByteArray& svg) {
    QXmlStreamReader xml(svg);
    QList<QTransform> transforms{QTransform()};
    QList<bool> filled{true};
    QList<QRectF> dots;
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isEndElement()) {
            transforms.removeLast();
            filled.removeLast();
        }
        if (!xml.isStartElement())
            continue;
        const QXmlStreamAttributes attributes = xml.attributes();
        transforms +=
            TransformOf(attributes.value(QStringLiteral("transform"))) * transforms.last();
        filled += attributes.hasAttribute(QStringLiteral("fill"))
                      ? attributes.value(QStringLiteral("fill")) != u"none"
                      : filled.last();
        const auto number = [&attributes](QStringView name) {
            return attributes.value(name.toString()).toDouble();
        };
        const QPointF centre(number(u"cx"), number(u"cy"));
        QSizeF radii;
        if (xml.name() == u"circle")
            radii = {number(u"r"), number(u"r")};
        else if (xml.name() == u"ellipse")
            radii = {number(u"rx"), number(u"ry")};
        if (!radii.isEmpty() && filled.last()) {
            const QPointF corner(radii.width(), radii.height());
            dots += transforms.last().mapRect(QRectF(centre - corner, centre + corner));
        }
    }
    return dots;
}
