#include "display/map/TMapNode.h"

#include <QMatrix4x4>
#include <QQuickWindow>

#include <algorithm>
#include <cmath>

namespace {

QRectF Around(const tagMapPicture& picture, const QPointF& point, double detail)
{
    return {point - picture.foot / detail, QSizeF(picture.image.size()) / detail};
}

/// On whole pixels, so that thin lines stay sharp.
QRectF Aligned(const QRectF& rectangle, double detail)
{
    const QPointF corner(std::round(rectangle.x() * detail), std::round(rectangle.y() * detail));
    return {corner / detail, rectangle.size()};
}

void DeleteChildren(QSGNode& node)
{
    while (QSGNode* child = node.firstChild()) {
        node.removeChildNode(child);
        delete child;
    }
}

} // namespace

TMapNode::TMapNode(QQuickWindow& window)
    : m_Window(window)
    , m_TilesNode(new QSGTransformNode)
    , m_FlagsNode(new QSGTransformNode)
    , m_VehicleNode(new QSGTransformNode)
{
    appendChildNode(m_TilesNode);
    appendChildNode(m_FlagsNode);
    appendChildNode(m_VehicleNode);
}

QSGImageNode* TMapNode::MakeNode(QSGTexture* texture, bool ownsTexture) const
{
    QSGImageNode* node = m_Window.createImageNode();
    node->setOwnsTexture(ownsTexture);
    node->setTexture(texture);
    node->setFiltering(QSGTexture::Linear);
    return node;
}

void TMapNode::ShowTiles(const TMapTiles& tiles, const std::vector<TMapTiles::Place>& seen, const tagMapView& view,
                         double detail)
{
    for (auto tile = m_Tiles.begin(); tile != m_Tiles.end();) {
        if (std::find(seen.begin(), seen.end(), tile->first) == seen.end()) {
            m_TilesNode->removeChildNode(tile->second.node);
            delete tile->second.node;
            tile = m_Tiles.erase(tile);
        } else {
            ++tile;
        }
    }

    // Nodes count in floats: places are counted from a tile near by, not from an origin kilometres away.
    const QPointF centre = QPointF(view.centre.x(), -view.centre.y()) / tiles.PixelMetres();
    const auto [baseX, baseY] = seen.front();
    const bool isTurned = view.bearing != 0;
    for (const TMapTiles::Place& place : seen) {
        const TMapTiles::tagTile& tile = tiles.Tile(place);
        tagTileNode& shown = m_Tiles[place];
        if (shown.version != tile.version) {
            if (shown.node != nullptr) {
                m_TilesNode->removeChildNode(shown.node);
                delete shown.node;
            }
            shown = {MakeNode(m_Window.createTextureFromImage(tile.picture), true), tile.version};
            m_TilesNode->appendChildNode(shown.node);
        }
        shown.node->setRect((place.first - baseX) * TMapTiles::StepPixels,
                            (place.second - baseY) * TMapTiles::StepPixels, TMapTiles::TilePixels,
                            TMapTiles::TilePixels);
        shown.node->setFiltering(isTurned ? QSGTexture::Linear : QSGTexture::Nearest);
    }

    QPointF offset = TMapTiles::Corner(seen.front()) - centre;
    QMatrix4x4 matrix;
    if (isTurned) {
        matrix.translate(float(view.anchor.x()), float(view.anchor.y()));
        matrix.rotate(float(-view.bearing), 0, 0, 1);
        matrix.scale(float(1 / detail));
        matrix.translate(float(offset.x()), float(offset.y()));
    } else {
        offset += view.anchor * detail;
        matrix.scale(float(1 / detail));
        matrix.translate(float(std::round(offset.x())), float(std::round(offset.y())));
    }
    m_TilesNode->setMatrix(matrix);
}

void TMapNode::ShowPictures(const tagMapPictures& pictures, double detail, const std::vector<QPointF>& flags,
                            const QPointF& crossHairs)
{
    if (m_PicturesVersion != pictures.version) {
        m_PicturesVersion = pictures.version;
        m_Flags.clear();
        DeleteChildren(*m_FlagsNode);
        m_FlagTexture.reset(m_Window.createTextureFromImage(pictures.flag.image));
        if (m_CrossHairsNode != nullptr) {
            removeChildNode(m_CrossHairsNode);
            delete m_CrossHairsNode;
        }
        m_CrossHairsNode = MakeNode(m_Window.createTextureFromImage(pictures.crossHairs.image), true);
        appendChildNode(m_CrossHairsNode);
    }
    m_CrossHairsNode->setRect(Aligned(Around(pictures.crossHairs, crossHairs, detail), detail));

    while (m_Flags.size() > flags.size()) {
        m_FlagsNode->removeChildNode(m_Flags.back());
        delete m_Flags.back();
        m_Flags.pop_back();
    }
    while (m_Flags.size() < flags.size()) {
        m_Flags.push_back(MakeNode(m_FlagTexture.get(), false));
        m_FlagsNode->appendChildNode(m_Flags.back());
    }
    for (std::size_t flag = 0; flag < flags.size(); ++flag)
        m_Flags[flag]->setRect(Aligned(Around(pictures.flag, flags[flag], detail), detail));
}

void TMapNode::ShowVehicle(const tagMapPictures& pictures, double detail, const QPointF& point, double degrees)
{
    if (m_VehicleVersion != pictures.vehicleVersion || m_VehicleNode->firstChild() == nullptr) {
        m_VehicleVersion = pictures.vehicleVersion;
        DeleteChildren(*m_VehicleNode);
        QSGImageNode* node = MakeNode(m_Window.createTextureFromImage(pictures.vehicle.image), true);
        node->setRect(Around(pictures.vehicle, QPointF(), detail));
        m_VehicleNode->appendChildNode(node);
    }
    QMatrix4x4 matrix;
    matrix.translate(float(point.x()), float(point.y()));
    matrix.rotate(float(degrees), 0, 0, 1);
    m_VehicleNode->setMatrix(matrix);
}

void TMapNode::HideVehicle() { DeleteChildren(*m_VehicleNode); }
