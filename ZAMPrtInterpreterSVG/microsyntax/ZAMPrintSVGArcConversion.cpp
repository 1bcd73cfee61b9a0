// SPDX-License-Identifier: MIT
#include "ZAMPrtInterpreterSVG/microsyntax/ZAMPrintSVGArcConversion.h"

#include "framework/mathematics/ZAMMathConstants.h"

#include <algorithm>
#include <cmath>

ZAMMathEllipticalArc ZAMPrintSVGArcByCenter(const ZAMPrintSVGArcCommand& command) {
    const double rotation = command.rotation * ZAMDegreeToRadian;
    const double cosine = std::cos(rotation);
    const double sine = std::sin(rotation);

    // Half the chord, seen along the ellipse's axes and measured in its radii: a chord within the unit circle fits.
    const double halfX = (command.from.x - command.to.x) / 2.0;
    const double halfY = (command.from.y - command.to.y) / 2.0;
    double u = (cosine * halfX + sine * halfY) / command.xRadius;
    double v = (-sine * halfX + cosine * halfY) / command.yRadius;
    const double lengthSquared = u * u + v * v;
    const double enlarge = std::max(1.0, std::sqrt(lengthSquared));
    const double xRadius = command.xRadius * enlarge;
    const double yRadius = command.yRadius * enlarge;
    u /= enlarge;
    v /= enlarge;

    const double distance = std::sqrt(std::max(0.0, 1.0 / lengthSquared - 1.0));
    const double side = command.largeArc == command.sweep ? -distance : distance;
    const double centerU = side * v;
    const double centerV = -side * u;

    const double start = std::atan2(v - centerV, u - centerU);
    double turn = std::atan2(-v - centerV, -u - centerU) - start;
    if (command.sweep && turn < 0.0) {
        turn += ZAM2PI;
    } else if (!command.sweep && turn > 0.0) {
        turn -= ZAM2PI;
    }
    const double alongX = centerU * xRadius;
    const double alongY = centerV * yRadius;
    const ZAMMathPoint2D center{cosine * alongX - sine * alongY + (command.from.x + command.to.x) / 2.0,
                                sine * alongX + cosine * alongY + (command.from.y + command.to.y) / 2.0};
    return {center, xRadius, yRadius, rotation, start, turn};
}
