#pragma once

#include "commissioning/report/HtmlWriter.h"

#include <QList>
#include <QString>
#include <QStringList>

/** A controller and its drives on their bus, drawn as SVG to stand in a page. */
namespace DeviceDrawing {

enum EMark { MARK_NONE, MARK_WARNING, MARK_ERROR };

enum ELayout {
    /** For a screen of a PC and for paper. */
    LAYOUT_WIDE,
    /** For a phone. */
    LAYOUT_NARROW
};

struct SModule {
    QString number;
    QString name;
    QString series;
    /** The place on the bus; the number alone is shown where there is no room for the words. */
    QString bus;
    QString busNumber;
    /** What a pointer that rests on it is told. */
    QString title;
    /** The id of the element that it leads to. */
    QString target;
    bool isOldSeries = false;
    EMark mark = MARK_NONE;
};

struct SDevice {
    QString name;
    QStringList details;
    /** Labels of the sockets. */
    QStringList sockets;
    QString title;
    QString target;
    EMark mark = MARK_NONE;
    QList<SModule> modules;
    /** Stands where modules would. */
    QString withoutModules;
};

/** Writes the shapes that all drawings of a page use. */
void writeShapes(HtmlWriter &out);
/** Writes one drawing; the style sheet of the page gives it its colours. */
void write(const SDevice &device, ELayout layout, HtmlWriter &out);

/** @p text, or its beginning and an ellipsis when it is wider than @p width times its height. */
QString shortened(const QString &text, double width);

} // namespace DeviceDrawing
