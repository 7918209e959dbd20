#pragma once

#include <QColor>
#include <QImage>
#include <QQuickImageProvider>

/// The background picture @p number of BackgroundTable.h in @p color, as a square of @p pixels that is repeated. Null
/// where there is none of that number.
QImage RenderBackground(int number, const QColor& color, int pixels);

/// Serves the background pictures to QML as image://background/NUMBER/COLOR, with a colour as QML writes it. A number
/// without a picture has an empty one.
///
/// @code
/// engine.addImageProvider(QStringLiteral("background"), new TBackgroundProvider);
/// // Image { source: "image://background/1/#101418"; sourceSize: Qt.size(48, 48); fillMode: Image.Tile }
/// @endcode
class TBackgroundProvider : public QQuickImageProvider
{
public:
    TBackgroundProvider();

    QImage requestImage(const QString& id, QSize* size, const QSize& requestedSize) override;
};
