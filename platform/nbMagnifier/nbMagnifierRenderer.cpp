// SPDX-License-Identifier: MIT
#include "nbMagnifierRenderer.h"

#include <nbKernel/nbOSGWidget.h>

#include <algorithm>
#include <cmath>

namespace {

struct Magnifier
{
    int x = 0;
    int y = 0;
    float scale = nbMagnifierRenderer::kDefaultScale;
    bool visible = false;
};

Magnifier& magnifier()
{
    static Magnifier theMagnifier;
    return theMagnifier;
}

/// Sets a value and asks for a redraw if the picture shows it.
template <class T>
void change(T& value, T newValue, bool isShown)
{
    if (value == newValue) {
        return;
    }
    value = newValue;
    nbOSGWidget* const widget = nbOSGWidget::getMGLW(-1);
    if (isShown && widget != nullptr) {
        widget->update();
    }
}

}  // namespace

void nbMagnifierRenderer::setCursorPosition(int x, int y)
{
    change(magnifier().x, x, isVisible());
    change(magnifier().y, y, isVisible());
}

int nbMagnifierRenderer::getCursorX()
{
    return magnifier().x;
}

int nbMagnifierRenderer::getCursorY()
{
    return magnifier().y;
}

void nbMagnifierRenderer::setMagnificationScale(float scale)
{
    if (std::isfinite(scale)) {
        change(magnifier().scale, std::clamp(scale, kSmallestScale, kLargestScale), isVisible());
    }
}

float nbMagnifierRenderer::getMagnificationScale()
{
    return magnifier().scale;
}

void nbMagnifierRenderer::setVisible(bool visible)
{
    change(magnifier().visible, visible, true);
}

bool nbMagnifierRenderer::isVisible()
{
    return magnifier().visible;
}
