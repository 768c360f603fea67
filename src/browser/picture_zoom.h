// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CPictureZoom: how large a picture is seen in a pane, and which part of it.
//
// All lengths are pixels of the screen. A factor of 1 is a pixel of the picture on a pixel of the screen. A
// picture that is smaller than the pane lies in its middle; one that is larger leaves no gap.
#pragma once

#include "platform/types.h"

namespace browser
{

struct PanePoint {
    double x = 0;
    double y = 0;
};

class CPictureZoom
{
public:
    static constexpr double kMostFactor = 16;

    void SetPane(platform::Extent size);
    // Another size shows the whole picture.
    void SetPicture(platform::Extent size);

    // The whole picture, never enlarged, whatever the pane's size becomes.
    void Fit() { fits = true; }
    bool IsFit() const { return fits; }
    double Factor() const { return fits ? FitFactor() : factor; }
    // The point under `anchor` stays there. What is no larger than the whole picture becomes Fit.
    void ZoomTo(double wanted, PanePoint anchor);
    // A step makes it a quarter larger or, when negative, smaller; none jumps over 1.
    void ZoomBy(int steps, PanePoint anchor);
    void Pan(double right, double down);
    // Whether there is more of the picture than can be seen.
    bool CanPan() const;

    // The whole picture's place, from the pane's upper left corner.
    platform::Rect Place() const;
    platform::Extent Pane() const { return pane; }

private:
    double FitFactor() const;
    void Settle();

    platform::Extent pane{1, 1};
    platform::Extent picture{1, 1};
    bool fits = true;
    double factor = 1;
    PanePoint centre;  // of the pane, in pixels of the picture
};

}  // namespace browser
