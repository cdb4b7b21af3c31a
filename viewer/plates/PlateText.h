// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QImage>
#include <QJsonObject>
#include <QString>

namespace viewer {

class JsonInput;

/// How a text becomes a picture.
struct PlateText
{
    static constexpr double kUsualHeight = 0.08;

    QString text;  ///< may have several lines
    QString font;  ///< family; empty: that of the program
    QColor color { Qt::white };
    bool bold = false;
    double height = kUsualHeight;  ///< of a line, heights of the view
};

/// A text as JSON: "text", "font", "color", "bold" and "height".
QJsonObject toJson(const PlateText& text);
/// Reads these, of which all but the text may be absent; what is absent stays as it is.
bool describe(JsonInput& in, PlateText& text);

/// Pixels of a text's picture per device pixel of the view that it is made for, so that it is sharp
/// there and stays so in a larger one.
constexpr int kTextOversampling = 2;

/// Paints a text on a clear ground that is as large as its letters need.
/// @param viewHeightPx  of the view that it is made for, device pixels
/// @return null for a text without a visible letter
QImage paintPlateText(const PlateText& text, int viewHeightPx);

}  // namespace viewer
