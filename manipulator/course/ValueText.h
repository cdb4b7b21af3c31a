// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/nbManipulatorExport.h"

#include <OpenSG/OSGVector.h>

#include <initializer_list>
#include <string>

class QString;

namespace nbec::notification {
class TextNotification;
}  // namespace nbec::notification

namespace nbec::manipulator {

/// The on-screen text with the values of a drag, of which each class of manipulators has one. Its
/// camera notifier is made on first use below the scene's internal root and registered under the
/// given name, with text size 1, line colour 0.5, background 0.05, white text, area (30, 30) to
/// (-1, -1), position (0, 26 / a), where a is the main view's width by height, at most 1, and 1
/// without a view. Position and area are set again on every call.
class NB_MANIPULATOR_API ValueText
{
public:
    /// @param notifier  name of the notifier, such as "transformInfo"
    explicit ValueText(const char* notifier);

    /// Shows a text; an empty one takes it away.
    void show(const QString& text);

    /// The same at a place of the view instead. @param placePx  upper left corner, logical pixels
    void showAt(const QString& text, const osg::Vec2f& placePx);

private:
    void put(const QString& text, const osg::Vec2f& place, float edge);

    std::string notifierName;
    notification::TextNotification* shown = nullptr;
};

/// A number with ".", whatever the locale, halves rounded as printf does. What rounds to zero has
/// no sign.
QString describeNumber(double value, int decimals);

/// "title x, y, z)" with two decimals each, see describeNumber().
/// @param title  untranslated text of the context "nbForegroundTextContext", such as "Scale ("
NB_MANIPULATOR_API QString describeValues(const char* title, const osg::Vec3f& values);

/// The same with any number of values.
NB_MANIPULATOR_API QString describeValues(const char* title, std::initializer_list<float> values);

}  // namespace nbec::manipulator
