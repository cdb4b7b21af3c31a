// SPDX-License-Identifier: MIT
#include "viewer/loading/ModelReader.h"

#include "tests/viewer/support/Files.h"
#include "viewer/loading/ModelRecords.h"

#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace viewer {
namespace {

/// A folder of model files written by the tests.
class ModelReaderTest : public testing::Test
{
protected:
    QString write(const char* name, const QByteArray& bytes) const
    {
        return writeFile(folder.filePath(name), bytes);
    }

    /// What cannot be read is one line that begins with the file.
    void expectRefusals(std::initializer_list<std::pair<const char*, QByteArray>> rows)
    {
        for (const auto& [name, bytes] : rows) {
            error.clear();
            EXPECT_FALSE(reader.read(write(name, bytes), {}, error)) << name;
            EXPECT_TRUE(error.startsWith(folder.filePath(name) + ": ")) << error.toStdString();
            EXPECT_FALSE(error.contains('\n'));
        }
    }

    QTemporaryDir folder;
    ModelReader reader;
    QString error;
};

const char* const kQuadObj =
    "mtllib quad.mtl\no Quad\nv 0 0 0\nv 2 0 0\nv 2 1 0\nv 0 1 0\nusemtl Red\nf 1 2 3 4\n";

TEST_F(ModelReaderTest, ObjKeepsNamesAndColoursAlsoAfterAMark)
{
    // Some programs begin texts with a mark of UTF-8.
    const QByteArray mark("\xef\xbb\xbf");
    write("quad.mtl", mark + "newmtl Red\nKd 0.75 0.25 0.125\nKs 0.5 0.5 0.5\nNs 32\nd 0.5\n");

    const auto model = reader.read(write("quad.obj", mark + kQuadObj), {}, error);

    ASSERT_TRUE(model) << error.toStdString();
    EXPECT_EQ(model->root.name, "quad");
    EXPECT_EQ(model->triangleCount(), 2U);
    ASSERT_EQ(model->root.children.size(), 1U);
    EXPECT_EQ(model->root.children[0].name, "Quad");
    const MeshData& mesh = model->meshes.at(model->root.children[0].meshes.at(0));
    EXPECT_EQ(mesh.positions.size(), 4U);
    EXPECT_EQ(mesh.normals.at(0), (Vec3 { 0, 0, 1 }));
    const MaterialData& material = model->materials.at(mesh.material);
    EXPECT_EQ(material.diffuse, (Rgb { 0.75F, 0.25F, 0.125F }));
    EXPECT_FLOAT_EQ(material.opacity, 0.5F);
}

TEST_F(ModelReaderTest, PlyAndStlAreRead)
{
    const QByteArray ply =
        "ply\nformat ascii 1.0\nelement vertex 3\nproperty float x\nproperty float y\nproperty "
        "float z\n"
        "property uchar red\nproperty uchar green\nproperty uchar blue\nelement face 1\n"
        "property list uchar int vertex_indices\nend_header\n"
        "0 0 0 255 0 0\n1 0 0 0 255 0\n0 1 0 0 0 255\n3 0 1 2\n";
    const QByteArray stl =
        "solid one\nfacet normal 0 0 1\nouter loop\nvertex 0 0 0\nvertex 1 0 0\nvertex 0 1 0\n"
        "endloop\nendfacet\nendsolid one\n";

    const auto colored = reader.read(write("a.ply", ply), {}, error);
    const auto plain = reader.read(write("b.stl", stl), {}, error);

    ASSERT_TRUE(colored && plain) << error.toStdString();
    EXPECT_EQ(colored->meshes.at(0).colors.at(1), (std::array<std::uint8_t, 4> { 0, 255, 0, 255 }));
    EXPECT_EQ(plain->triangleCount(), 1U);
    EXPECT_EQ(plain->meshes.at(0).normals.at(0), (Vec3 { 0, 0, 1 }));
}

TEST_F(ModelReaderTest, APictureBecomesARectangleOfItsShape)
{
    const auto model =
        reader.read(writePlainPicture(folder.filePath("wide.png"), { 40, 20 }, Qt::red), {}, error);

    ASSERT_TRUE(model) << error.toStdString();
    EXPECT_EQ(model->materials.at(0).texture.size(), QSize(40, 20));
    EXPECT_FLOAT_EQ(model->meshes.at(0).positions.at(1)[0], 2.0F);
}

TEST_F(ModelReaderTest, BrokenFilesGiveOneLineWithTheirName)
{
    const QByteArray noise(400, '\x91');
    expectRefusals({
        { "empty.obj", "" },
        { "noise.obj", noise },
        { "wild.obj", "v 0 0 0\nv 1 0 0\nv 0 1 0\nf 1 2 900\n" },
        { "nan.obj", "v nan 0 0\nv 1 inf 0\nv 0 1 0\nf 1 2 3\n" },
        { "short.ply",
          "ply\nformat binary_little_endian 1.0\nelement vertex 1000000\nproperty float "
          "x\nend_header\nab" },
        { "cornerless.ply",
          "ply\nformat ascii 1.0\nelement vertex 3\nproperty float x\nproperty float y\nproperty "
          "float z\nelement face 1\nproperty list uchar int vertex_indices\nend_header\n0 0 0\n" },
        { "noise.stl", noise },
        { "long.stl", QByteArray(80, ' ') + QByteArray("\xff\xff\xff\x7f", 4) },
        { "noise.glb", noise },
        { "noise.png", noise },
        { "unknown.xyz123", noise },
    });
    EXPECT_FALSE(reader.read(folder.filePath("wild.obj"), {}, error));
    EXPECT_TRUE(error.contains("line 4")) << error.toStdString();
    EXPECT_FALSE(reader.read(folder.filePath("none.obj"), {}, error));
    EXPECT_TRUE(error.endsWith("none.obj: no such file"));
}

TEST_F(ModelReaderTest, AMissingPictureIsAWarningOnly)
{
    write("quad.mtl", "newmtl Red\nmap_Kd nowhere.png\n");

    const auto model = reader.read(write("quad.obj", kQuadObj), {}, error);

    ASSERT_TRUE(model) << error.toStdString();
    ASSERT_EQ(model->warnings.size(), 1);
    EXPECT_TRUE(model->warnings[0].contains("nowhere.png"));
}

TEST_F(ModelReaderTest, WhatAFileMakesTheImporterDoIsOneLine)
{
    QByteArray nested =
        R"({"asset":{"version":"2.0"},"scene":0,"scenes":[{"nodes":[0]}],"nodes":[)";
    for (int i = 1; i < 30000; ++i) {
        nested += "{\"children\":[" + QByteArray::number(i) + "]},";
    }
    nested += "{}]}";
    const QByteArray loop =
        R"({"asset":{"version":"2.0"},"scene":0,"scenes":[{"nodes":[0]}],"nodes":[{"children":[0]}]})";
    // A GLB whose part of text says that it is nearly as long as can be written.
    const QByteArray vast("glTF\2\0\0\0\x18\0\0\0\xf0\xff\xff\xff"
                          "JSON{}  ",
                          24);
    const QByteArray endless = "ply\nformat ascii 1.0\nelement vertex 3\nproperty float x";
    expectRefusals({ { "nested.gltf", nested },
                     { "loop.gltf", loop },
                     { "vast.glb", vast },
                     { "endless.ply", endless },
                     { "far.obj", "v 1e16 0 0\nv 1 0 0\nv 0 1 0\nf 1 2 3\n" } });
    EXPECT_TRUE(error.endsWith("it has places too far away")) << error.toStdString();
    EXPECT_TRUE(reader.read(write("quad.obj", kQuadObj), {}, error)) << "another program reads on";
}

TEST_F(ModelReaderTest, NeitherTimeNorMemoryIsTakenWithoutEnd)
{
    QByteArray grid;
    for (int i = 0; i < 200000; ++i) {
        grid += "v " + QByteArray::number(i) + " 1 2\nf 1 2 3\n";
    }
    const QString large = write("large.obj", grid);
    const auto refusal = [&](const ModelReader::Limits& limits, const ReadProgress& progress) {
        error.clear();
        ModelReader small(limits);
        EXPECT_FALSE(small.read(large, progress, error));
        return error.mid(large.size() + 2).toStdString();
    };
    constexpr qint64 kMegabyte = 1 << 20;

    EXPECT_EQ(refusal({ 30 * kMegabyte }, {}),
              "cannot be read as a model: it would take too much memory");
    EXPECT_EQ(refusal({ 1024 * kMegabyte, -60000 }, {}), "has no end: reading was given up");
    EXPECT_EQ(refusal({}, [](double) { return false; }), "reading was stopped");

    // A program that was taken over tells of progress for ever.
    const QString endless = write("endless", R"(#!/bin/sh
while printf '\0\0\0\0\010\0\0\0\0\0\0\0\0' && sleep 0.01; do :; done)");
    ASSERT_TRUE(QFile::setPermissions(endless, QFile::ReadOwner | QFile::ExeOwner));
    const int ofItsSize = static_cast<int>(QFileInfo(large).size() / 1000);
    EXPECT_EQ(refusal({ 1024 * kMegabyte, 60 - ofItsSize, endless }, {}),
              "has no end: reading was given up");
    EXPECT_EQ(refusal({ 1 << 10, 60000, endless }, {}),
              "cannot be read as a model: it would take too much memory");
}

/// Records of a model with everything in it.
QByteArray richRecords()
{
    ModelData model;
    model.materials.resize(2);
    model.materials[1].texture = QImage(3, 2, QImage::Format_RGB32);
    model.materials[1].texture.fill(Qt::red);
    MeshData mesh;
    mesh.positions = { { 0, 0, 0 }, { 1, 0, 0 }, { 0, 1, 0 } };
    mesh.texCoords.resize(3);
    mesh.triangles = { 0, 1, 2 };
    mesh.material = 1;
    model.meshes = { mesh };
    model.root.name = "Root";
    NodeData leaf;
    leaf.name = "Leaf";
    leaf.meshes = { 0 };
    model.root.children = { leaf, leaf };
    model.root.children[0].children = { leaf };
    QByteArray bytes = progressRecord(0.5) + textRecord(ModelRecord::Warning, "dull");
    writeModel(model, [&bytes](const QByteArray& record) { bytes += record; });
    return bytes;
}

TEST(ModelAssembly, GivesTheModelBackHoweverItComes)
{
    const QByteArray bytes = richRecords();
    ModelAssembly assembly;
    for (const char byte : bytes) {
        ASSERT_FALSE(assembly.isComplete());
        ASSERT_TRUE(assembly.take(QByteArray(1, byte)));
    }
    ASSERT_TRUE(assembly.isComplete());
    EXPECT_EQ(assembly.progress(), 0.5);
    const ModelData model = assembly.takeModel();
    EXPECT_EQ(model.warnings, QStringList { "dull" });
    EXPECT_EQ(model.materials.at(1).texture.pixel(2, 1), QColor(Qt::red).rgb());
    EXPECT_EQ(model.root.children.at(0).children.at(0).name, "Leaf");
    EXPECT_TRUE(model.root.children.at(1).children.empty());
    QByteArray again = progressRecord(0.5);
    writeModel(model, [&again](const QByteArray& record) { again += record; });
    EXPECT_EQ(again, bytes);
}

TEST(ModelAssembly, RefusesWhatIsNoModel)
{
    const QByteArray sound = richRecords();
    int refused = 0;
    for (int i = 0; i < sound.size(); ++i) {
        QByteArray damaged = sound;
        damaged[i] = '\xff';
        ModelAssembly assembly;
        refused += assembly.take(damaged) ? 0 : 1;
        const ModelData model = assembly.takeModel();
        for (const MeshData& mesh : model.meshes) {
            for (const std::uint32_t vertex : mesh.triangles) {
                ASSERT_TRUE(refused > 0 || vertex < mesh.positions.size());
            }
        }
    }
    EXPECT_GT(refused, sound.size() / 4);
    QByteArray deep;
    ModelData model;
    for (int i = 0; i < kDeepestNode + 2; ++i) {
        NodeData above;
        above.children = { std::move(model.root) };
        model.root = std::move(above);
    }
    writeModel(model, [&deep](const QByteArray& record) { deep += record; });
    EXPECT_FALSE(ModelAssembly().take(deep));
}

}  // namespace
}  // namespace viewer
