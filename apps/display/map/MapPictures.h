#pragma once

#include "display/map/MapStyle.h"
#include "display/map/TMapModel.h"

#include <QImage>

/// What stands on the map on its own, not in its tiles.
struct tagMapPicture
{
    QImage image;
    QPointF foot; ///< the pixel that stands on the place
};

/// The vehicle, its front up, and the implement where it is and as wide as it is: filled while it works, an outline
/// while it is lifted. The tractor keeps a size that can be seen, and stands clear of the implement. detail: pixels of
/// the picture for one of the item.
tagMapPicture VehiclePicture(const tagMapVehicle& vehicle, const tagMapColors& colors, double metresPerPixel,
                             double detail);

tagMapPicture FlagPicture(const tagMapColors& colors, double detail);
tagMapPicture CrossHairsPicture(const tagMapColors& colors, double detail);

/// All of them, with a number that is another one each time they are painted.
struct tagMapPictures
{
    tagMapPicture vehicle;
    tagMapPicture flag;
    tagMapPicture crossHairs;
    int vehicleVersion = 0;
    int version = 0; ///< of the others
};
