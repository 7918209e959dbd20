#include "display/map/MapPictures.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr double VehicleMetres = 5;
constexpr double VehiclePixelsLeast = 44;
constexpr double VehiclePixelsMost = 110;

/// The tractor from above, its length 1 and the antenna at 0, 0: x to the right, y to the rear.
constexpr std::array<QPointF, 6> Body = {
    QPointF(-0.15, -0.55), QPointF(0.15, -0.55), QPointF(0.25, 0.0),
    QPointF(0.25, 0.32),   QPointF(-0.25, 0.32), QPointF(-0.25, 0.0),
};
constexpr QRectF LeftWheel(-0.44, 0.0, 0.16, 0.42);
constexpr QRectF RightWheel(0.28, 0.0, 0.16, 0.42);
constexpr QRectF Vehicle(-0.44, -0.55, 0.88, 0.97);

constexpr double BarPixels = 9;
constexpr double GapPixels = 4; // between the tractor and the implement
constexpr double CasingPixels = 1.5;
constexpr double MarginPixels = 3;

/// An implement of 48 m at the closest zoom is half of it; memory is bounded whatever the model says.
constexpr double WidestPixels = 4096;

QImage Blank(const QSizeF& size)
{
    QImage image(int(std::ceil(size.width())), int(std::ceil(size.height())), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

double Bounded(double metres, double metresPerPixel)
{
    const double pixels = metres / metresPerPixel;
    return std::isnan(pixels) ? 0 : std::clamp(pixels, -WidestPixels, WidestPixels);
}

} // namespace

tagMapPicture VehiclePicture(const tagMapVehicle& vehicle, const tagMapColors& colors, double metresPerPixel,
                             double detail)
{
    const double length = std::clamp(VehicleMetres / metresPerPixel, VehiclePixelsLeast, VehiclePixelsMost) * detail;
    const double pixelMetres = metresPerPixel / detail;
    const double width = std::max(Bounded(vehicle.implementWidth, pixelMetres), 0.0);
    const double behind = Bounded(vehicle.implementBehind, pixelMetres);
    const double bar = BarPixels * detail;
    const double margin = MarginPixels * detail;

    // The implement is where it is; the tractor is larger than it is, and makes room for it.
    const double room = bar / 2 + GapPixels * detail;
    const double shift = behind < 0 ? std::max(behind + room - length * Vehicle.top(), 0.0)
                                    : std::min(behind - room - length * Vehicle.bottom(), 0.0);

    const double halfWidth = std::ceil(std::max(length * Vehicle.right(), width / 2) + margin);
    const double front = std::ceil(std::max(-length * Vehicle.top() - shift, bar / 2 - behind) + margin);
    const double rear = std::max(length * Vehicle.bottom() + shift, behind + bar / 2) + margin;
    tagMapPicture picture = {Blank({2 * halfWidth, front + rear}), QPointF(halfWidth, front)};

    QPainter painter(&picture.image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(picture.foot);
    const QPen casing(colors.ground, CasingPixels * detail);
    painter.setPen(QPen(colors.vehicle, bar / 2));
    painter.drawLine(QPointF(0, shift), QPointF(0, behind));
    for (const QRectF& wheel : {LeftWheel, RightWheel}) {
        painter.setPen(casing);
        painter.setBrush(DetailOn(colors.ground));
        painter.drawRect(QRectF(wheel.topLeft() * length + QPointF(0, shift), wheel.size() * length));
    }
    QPolygonF body;
    for (const QPointF& corner : Body)
        body << corner * length + QPointF(0, shift);
    painter.setBrush(colors.vehicle);
    painter.drawPolygon(body);

    const QRectF implement(-width / 2, behind - bar / 2, width, bar);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colors.vehicle);
    painter.drawRect(implement);
    if (!vehicle.isWorking) {
        const double frame = 2 * detail;
        painter.setBrush(colors.ground);
        painter.drawRect(implement.adjusted(frame, frame, -frame, -frame));
    }
    return picture;
}

tagMapPicture FlagPicture(const tagMapColors& colors, double detail)
{
    constexpr double Radius = 11;
    constexpr double Height = 30;
    const double radius = Radius * detail;
    const double margin = MarginPixels * detail;
    const double foot = Height * detail + margin;
    tagMapPicture picture = {Blank({2 * (radius + margin), foot + margin}), QPointF(radius + margin, foot)};

    QPainter painter(&picture.image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(picture.foot);
    const QPointF head(0, radius - Height * detail);
    QPainterPath pin;
    pin.addEllipse(head, radius, radius);
    QPainterPath point;
    point.addPolygon(QPolygonF() << QPointF(0, 0) << head + QPointF(-radius * 0.94, radius * 0.34)
                                 << head + QPointF(radius * 0.94, radius * 0.34));
    point.closeSubpath();
    painter.setPen(QPen(colors.ground, CasingPixels * detail));
    painter.setBrush(colors.flag);
    painter.drawPath(pin.united(point));
    painter.setPen(Qt::NoPen);
    painter.setBrush(colors.ground);
    painter.drawEllipse(head, radius * 0.4, radius * 0.4);
    return picture;
}

tagMapPicture CrossHairsPicture(const tagMapColors& colors, double detail)
{
    constexpr int Arm = 22;
    constexpr int Width = 2;
    const int arm = qRound(Arm * detail);
    const int width = std::max(1, qRound(Width * detail));
    const int size = 2 * arm + width;
    tagMapPicture picture = {Blank(QSizeF(size, size)), QPointF(size, size) / 2};
    QPainter painter(&picture.image);
    painter.fillRect(arm, 0, width, size, colors.crossHairs);
    painter.fillRect(0, arm, size, width, colors.crossHairs);
    return picture;
}
