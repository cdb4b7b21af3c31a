// SPDX-License-Identifier: MIT
#include "viewer/loading/ModelRecords.h"

#include "viewer/commands/SceneLimits.h"
#include "viewer/loading/PictureDecoding.h"

#include <QDataStream>
#include <QIODevice>

#include <algorithm>
#include <type_traits>
#include <utility>

namespace viewer {
namespace {

constexpr int kHeaderBytes = 5;
constexpr int kBytesOfAPixel = 4;
constexpr float kMostShininess = 128.0F;

template <class Write>
QByteArray record(ModelRecord kind, Write write)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out << quint8(kind) << quint32(0);
    write(out);
    out.device()->seek(1);
    out << quint32(bytes.size() - kHeaderBytes);
    return bytes;
}

// == Arrays: how many, and their bytes, for both programs run on this machine

template <class Value>
void put(QDataStream& out, const std::vector<Value>& values)
{
    static_assert(std::is_trivially_copyable_v<Value>);
    out << quint32(values.size());
    out.writeRawData(reinterpret_cast<const char*>(values.data()),
                     static_cast<int>(values.size() * sizeof(Value)));
}

template <class Value>
bool get(QDataStream& in, std::vector<Value>& values)
{
    quint32 count = 0;
    in >> count;
    const qint64 bytes = qint64(count) * qint64(sizeof(Value));
    if (in.status() != QDataStream::Ok || bytes > in.device()->bytesAvailable()) {
        return false;
    }
    values.resize(count);
    return in.readRawData(reinterpret_cast<char*>(values.data()), static_cast<int>(bytes)) == bytes;
}

template <class... Values>
void putPlain(QDataStream& out, const Values&... values)
{
    (out.writeRawData(reinterpret_cast<const char*>(&values), sizeof(Values)), ...);
}

template <class... Values>
bool getPlain(QDataStream& in, Values&... values)
{
    return (
        (in.readRawData(reinterpret_cast<char*>(&values), sizeof(Values)) == int(sizeof(Values))) &&
        ...);
}

/// Whether a record held what it should and nothing else.
bool isOver(QDataStream& in)
{
    return in.status() == QDataStream::Ok && in.atEnd();
}

template <class Numbers>
bool areSceneNumbers(const Numbers& numbers)
{
    return std::all_of(numbers.begin(), numbers.end(), isSceneNumber<float>);
}

template <class Value>
bool areAllSceneNumbers(const std::vector<Value>& values)
{
    return std::all_of(values.begin(), values.end(), areSceneNumbers<Value>);
}

bool isColor(const Rgb& rgb)
{
    return std::all_of(rgb.begin(), rgb.end(), [](float part) { return part >= 0 && part <= 1; });
}

// == Parts of a model

QImage::Format formatOf(bool hasAlpha)
{
    return hasAlpha ? QImage::Format_ARGB32 : QImage::Format_RGB32;
}

QByteArray materialRecord(const MaterialData& material)
{
    return record(ModelRecord::Material, [&material](QDataStream& out) {
        out << material.name;
        putPlain(out, material.diffuse, material.specular, material.emission, material.shininess,
                 material.opacity);
        const bool hasAlpha = material.texture.hasAlphaChannel();
        const QImage picture = material.texture.convertToFormat(formatOf(hasAlpha));
        out << hasAlpha << qint32(picture.width()) << qint32(picture.height());
        out.writeRawData(reinterpret_cast<const char*>(picture.constBits()),
                         static_cast<int>(picture.sizeInBytes()));
    });
}

bool readTexture(QDataStream& in, QImage& texture)
{
    bool hasAlpha = false;
    qint32 width = 0;
    qint32 height = 0;
    in >> hasAlpha >> width >> height;
    const qint64 bytes = in.device()->bytesAvailable();
    if (in.status() != QDataStream::Ok || (width == 0 && height == 0)) {
        return isOver(in);
    }
    constexpr int kLongestSide = 1 << 20;
    if (width < 1 || height < 1 || width > kLongestSide || height > kLongestSide ||
        qint64(width) * height * kBytesOfAPixel != bytes || bytes > pictureBudget()) {
        return false;
    }
    texture = QImage(width, height, formatOf(hasAlpha));
    return !texture.isNull() && texture.sizeInBytes() == bytes &&
        in.readRawData(reinterpret_cast<char*>(texture.bits()), static_cast<int>(bytes)) == bytes;
}

bool readMaterial(QDataStream& in, MaterialData& material)
{
    in >> material.name;
    return getPlain(in, material.diffuse, material.specular, material.emission, material.shininess,
                    material.opacity) &&
        isColor(material.diffuse) && isColor(material.specular) && isColor(material.emission) &&
        material.shininess >= 1.0F && material.shininess <= kMostShininess &&
        material.opacity >= 0.0F && material.opacity <= 1.0F && readTexture(in, material.texture) &&
        isOver(in);
}

QByteArray meshRecord(const MeshData& mesh)
{
    return record(ModelRecord::Mesh, [&mesh](QDataStream& out) {
        out << mesh.name << quint32(mesh.material);
        put(out, mesh.positions);
        put(out, mesh.normals);
        put(out, mesh.texCoords);
        put(out, mesh.colors);
        put(out, mesh.triangles);
    });
}

bool isMesh(const MeshData& mesh, std::size_t materials)
{
    const std::size_t count = mesh.positions.size();
    const auto isOptional = [count](std::size_t size) { return size == 0 || size == count; };
    return mesh.material < materials && isOptional(mesh.normals.size()) &&
        isOptional(mesh.texCoords.size()) && isOptional(mesh.colors.size()) &&
        mesh.triangles.size() % 3 == 0 &&
        std::all_of(mesh.triangles.begin(), mesh.triangles.end(),
                    [count](std::uint32_t vertex) { return vertex < count; }) &&
        areAllSceneNumbers(mesh.positions) && areAllSceneNumbers(mesh.normals) &&
        areAllSceneNumbers(mesh.texCoords);
}

bool readMesh(QDataStream& in, std::size_t materials, MeshData& mesh)
{
    quint32 material = 0;
    in >> mesh.name >> material;
    mesh.material = material;
    return get(in, mesh.positions) && get(in, mesh.normals) && get(in, mesh.texCoords) &&
        get(in, mesh.colors) && get(in, mesh.triangles) && isOver(in) && isMesh(mesh, materials);
}

/// Writes nodes parents first, each with the number of its parent.
void putNodes(QDataStream& out, const NodeData& node, quint32 parent, quint32& next)
{
    const quint32 number = next++;
    out << parent << node.name;
    putPlain(out, node.matrix);
    put(out, std::vector<quint32>(node.meshes.begin(), node.meshes.end()));
    for (const NodeData& child : node.children) {
        putNodes(out, child, number, next);
    }
}

/// A node that has been read, and where it belongs.
struct ReadNode
{
    NodeData node;
    quint32 parent = 0;
    int depth = 0;
};

bool readNode(QDataStream& in, std::size_t meshes, std::vector<ReadNode>& nodes)
{
    ReadNode read;
    in >> read.parent >> read.node.name;
    std::vector<quint32> shown;
    if (!getPlain(in, read.node.matrix) || !get(in, shown) || !areSceneNumbers(read.node.matrix) ||
        std::any_of(shown.begin(), shown.end(), [&](quint32 mesh) { return mesh >= meshes; })) {
        return false;
    }
    read.node.meshes.assign(shown.begin(), shown.end());
    if (!nodes.empty() && read.parent >= nodes.size()) {
        return false;
    }
    read.depth = nodes.empty() ? 0 : nodes[read.parent].depth + 1;
    nodes.push_back(std::move(read));
    return nodes.back().depth <= kDeepestNode;
}

bool readNodes(QDataStream& in, std::size_t meshes, NodeData& root)
{
    std::vector<ReadNode> nodes;
    while (!in.atEnd()) {
        if (!readNode(in, meshes, nodes)) {
            return false;
        }
    }
    // Backwards, so that each is whole when it goes to its parent.
    for (std::size_t i = nodes.size(); i-- > 0;) {
        NodeData& node = nodes[i].node;
        std::reverse(node.children.begin(), node.children.end());
        if (i > 0) {
            nodes[nodes[i].parent].node.children.push_back(std::move(node));
        } else {
            root = std::move(node);
        }
    }
    return isOver(in) && !nodes.empty();
}

}  // namespace

QByteArray progressRecord(double fraction)
{
    return record(ModelRecord::Progress, [fraction](QDataStream& out) { out << fraction; });
}

QByteArray textRecord(ModelRecord kind, const QString& text)
{
    return record(kind, [&text](QDataStream& out) { out << text; });
}

void writeModel(const ModelData& model, const std::function<void(const QByteArray&)>& write)
{
    for (const QString& warning : model.warnings) {
        write(textRecord(ModelRecord::Warning, warning));
    }
    for (const MaterialData& material : model.materials) {
        write(materialRecord(material));
    }
    for (const MeshData& mesh : model.meshes) {
        write(meshRecord(mesh));
    }
    write(record(ModelRecord::Nodes, [&model](QDataStream& out) {
        quint32 next = 0;
        putNodes(out, model.root, 0, next);
    }));
    write(record(ModelRecord::Done, [](QDataStream&) {}));
}

bool ModelAssembly::take(const QByteArray& bytes)
{
    waiting += bytes;
    int at = 0;
    while (!complete && waiting.size() - at >= kHeaderBytes) {
        QDataStream header(waiting.mid(at, kHeaderBytes));
        quint8 kind = 0;
        quint32 length = 0;
        header >> kind >> length;
        if (kind > quint8(ModelRecord::Failure) || length > kMostRecordBytes) {
            return false;
        }
        if (waiting.size() - at - kHeaderBytes < qint64(length)) {
            break;
        }
        const auto content = QByteArray::fromRawData(waiting.constData() + at + kHeaderBytes,
                                                     static_cast<int>(length));
        if (!takeRecord(ModelRecord(kind), content)) {
            return false;
        }
        at += kHeaderBytes + static_cast<int>(length);
    }
    waiting.remove(0, at);
    return true;
}

bool ModelAssembly::takeRecord(ModelRecord kind, const QByteArray& content)
{
    QDataStream in(content);
    QString text;
    switch (kind) {
    case ModelRecord::Progress:
        in >> fraction;
        return isOver(in) && fraction >= 0.0 && fraction <= 1.0;
    case ModelRecord::Warning:
        in >> text;
        model.warnings.append(text);
        return isOver(in);
    case ModelRecord::Material:
        return readMaterial(in, model.materials.emplace_back());
    case ModelRecord::Mesh:
        return readMesh(in, model.materials.size(), model.meshes.emplace_back());
    case ModelRecord::Nodes:
        return readNodes(in, model.meshes.size(), model.root);
    case ModelRecord::Done:
        complete = true;
        return isOver(in);
    case ModelRecord::Failure:
        in >> failed;
        complete = true;
        return isOver(in) && !failed.isEmpty();
    }
    return false;
}

}  // namespace viewer
