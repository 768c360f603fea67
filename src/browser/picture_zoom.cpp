// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "browser/picture_zoom.h"

#include <algorithm>
#include <cmath>

namespace browser
{

namespace
{

constexpr double kStep = 1.25;
// Factors closer than that are the same.
constexpr double kNear = 1e-3;

int Side(int pixels, double factor)
{
    return std::max(1, static_cast<int>(std::lround(pixels * factor)));
}

// Where the pane's middle may be along one axis, in pixels of the picture.
double Settled(double centre, int pane, int picture, double factor)
{
    const double half = pane / factor / 2;
    return half * 2 >= picture ? picture / 2.0 : std::clamp(centre, half, picture - half);
}

int Start(double centre, int pane, int side, double factor)
{
    if (side <= pane)
        return (pane - side) / 2;
    return std::clamp(static_cast<int>(std::lround(pane / 2.0 - centre * factor)), pane - side, 0);
}

}  // namespace

void CPictureZoom::SetPane(platform::Extent size)
{
    pane = {std::max(1, size.width), std::max(1, size.height)};
    Settle();
}

void CPictureZoom::SetPicture(platform::Extent size)
{
    if (size == picture)
        return;
    picture = {std::max(1, size.width), std::max(1, size.height)};
    Fit();
}

double CPictureZoom::FitFactor() const
{
    return std::min({1.0, static_cast<double>(pane.width) / picture.width,
                     static_cast<double>(pane.height) / picture.height});
}

void CPictureZoom::ZoomTo(double wanted, PanePoint anchor)
{
    const double before = Factor();
    if (fits)
        centre = {picture.width / 2.0, picture.height / 2.0};
    const PanePoint away = {anchor.x - pane.width / 2.0, anchor.y - pane.height / 2.0};
    factor = std::min(wanted, kMostFactor);
    fits = factor <= FitFactor() * (1 + kNear);
    centre.x += away.x / before - away.x / factor;
    centre.y += away.y / before - away.y / factor;
    Settle();
}

void CPictureZoom::ZoomBy(int steps, PanePoint anchor)
{
    const double before = Factor();
    double wanted = before * std::pow(kStep, steps);
    const bool crosses = (before < 1 - kNear && wanted > 1) || (before > 1 + kNear && wanted < 1);
    if (crosses)
        wanted = 1;
    ZoomTo(wanted, anchor);
}

void CPictureZoom::Pan(double right, double down)
{
    if (fits)
        return;
    centre.x -= right / factor;
    centre.y -= down / factor;
    Settle();
}

bool CPictureZoom::CanPan() const
{
    const platform::Rect place = Place();
    return place.right - place.left > pane.width || place.bottom - place.top > pane.height;
}

void CPictureZoom::Settle()
{
    centre.x = Settled(centre.x, pane.width, picture.width, factor);
    centre.y = Settled(centre.y, pane.height, picture.height, factor);
}

platform::Rect CPictureZoom::Place() const
{
    const double now = Factor();
    const platform::Extent size = {Side(picture.width, now), Side(picture.height, now)};
    const int left = Start(centre.x, pane.width, size.width, now);
    const int top = Start(centre.y, pane.height, size.height, now);
    return {left, top, left + size.width, top + size.height};
}

}  // namespace browser
