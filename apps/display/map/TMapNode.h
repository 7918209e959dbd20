#pragma once

#include "display/map/MapPictures.h"
#include "display/map/MapView.h"
#include "display/map/TMapTiles.h"

#include <QSGImageNode>
#include <QSGNode>
#include <QSGTexture>

#include <map>
#include <memory>
#include <vector>

class QQuickWindow;

/// The map in the scene graph: image nodes alone. A texture is made when what it shows was painted again. Belongs to
/// the thread that renders.
///
/// All nodes that hold others are transform nodes: when one below them is moved or added, the software renderer of Qt
/// finds where they are on the window, and what clips them, with transform nodes only.
class TMapNode : public QSGTransformNode
{
public:
    explicit TMapNode(QQuickWindow& window);

    /// detail: pixels of a tile for one pixel of the item.
    void ShowTiles(const TMapTiles& tiles, const std::vector<TMapTiles::Place>& seen, const tagMapView& view,
                   double detail);
    void ShowPictures(const tagMapPictures& pictures, double detail, const std::vector<QPointF>& flags,
                      const QPointF& crossHairs);
    void ShowVehicle(const tagMapPictures& pictures, double detail, const QPointF& point, double degrees);
    void HideVehicle();

private:
    struct tagTileNode
    {
        QSGImageNode* node;
        quint64 version;
    };

    QSGImageNode* MakeNode(QSGTexture* texture, bool ownsTexture) const;

    QQuickWindow& m_Window;
    QSGTransformNode* m_TilesNode;
    QSGTransformNode* m_FlagsNode;
    QSGTransformNode* m_VehicleNode;
    QSGImageNode* m_CrossHairsNode = nullptr;
    std::map<TMapTiles::Place, tagTileNode> m_Tiles;
    std::vector<QSGImageNode*> m_Flags;
    std::unique_ptr<QSGTexture> m_FlagTexture;
    int m_VehicleVersion = 0;
    int m_PicturesVersion = 0;
};
