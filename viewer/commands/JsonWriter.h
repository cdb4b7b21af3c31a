// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QJsonValue>
#include <QString>

#include <vector>

namespace viewer {

/// Writes JSON for people and for version control: entries keep the order in which they are
/// written, what belongs together stands in one line, and numbers have as few digits as give them
/// back. The same calls give the same bytes.
class JsonWriter
{
public:
    /// How the entries of an object or array are set out.
    enum class Layout
    {
        Lines,  ///< each in a line of its own; back in one line within an Inline one
        Inline
    };

    void beginObject(Layout layout);
    void endObject();
    void beginArray(Layout layout);
    void endArray();
    /// Names the next value of the open object.
    void key(const QString& name);

    /// Any value; arrays and objects in one line, entries of objects by their names.
    void value(const QJsonValue& any);
    /// A number of double precision; a negative zero becomes 0.
    void number(double value);
    /// Text that is JSON already, such as a number of another precision.
    void raw(const QByteArray& json);

    /// The text; ends with a newline. All objects and arrays are closed.
    QByteArray take();

private:
    struct Level
    {
        Layout layout;
        bool isEmpty = true;
    };

    void begin(Layout layout, char bracket);
    void end(char bracket);
    void separate();

    QByteArray text;
    std::vector<Level> levels;
    bool isNamed = false;  ///< a key waits for its value
};

/// Fewest digits that give a number back, bit for bit, when they are read in double precision and
/// brought back to this type. JSON knows no negative zero: it becomes the text "-0" in quotes.
/// @param value  finite
QByteArray exactJson(float value);
QByteArray exactJson(double value);

/// The number of double precision that is written with the fewest digits that give a number of
/// single precision back, such as 0.1 for the nearest float to it.
/// @param value  finite
double shortDouble(float value);

}  // namespace viewer
