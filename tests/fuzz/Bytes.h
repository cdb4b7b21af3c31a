// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGVector.h>

#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>

namespace nbec::manipulator::test {

/// Reads the input of a fuzzer from front to back as choices; zeros follow its end.
class Bytes
{
public:
    /// @param first  outlives this
    Bytes(const std::uint8_t* first, std::size_t count)
        : data(first)
        , size(count)
    { }

    bool atEnd() const { return position >= size; }

    /// The last one, which is read in its turn, too.
    std::uint8_t last() const { return size == 0 ? std::uint8_t(0) : data[size - 1]; }

    std::uint8_t next() { return atEnd() ? std::uint8_t(0) : data[position++]; }

    /// True once in so many times.
    bool once(unsigned times) { return next() % times == times - 1; }

    bool flag() { return next() % 2 == 0; }

    /// An element of an array or vector that is not empty.
    template <class Table>
    const auto& oneOf(const Table& table)
    {
        return table[next() % table.size()];
    }

    /// A number of the sizes that scenes have, now and then zero, tiny or huge.
    float finite()
    {
        switch (next() % 16) {
        case 0:
            return 0.0F;
        case 1:
            return 1e30F;
        case 2:
            return -1e-30F;
        case 3:
            return std::numeric_limits<float>::max();
        default:
            return (static_cast<float>(next()) - 128.0F) / 16.0F;
        }
    }

    /// The same, or one that is not finite.
    float number()
    {
        switch (next() % 16) {
        case 0:
            return std::numeric_limits<float>::quiet_NaN();
        case 1:
            return -std::numeric_limits<float>::infinity();
        default:
            return finite();
        }
    }

    /// A number of an ordinary size: most of a scene's, so that what is done in it has effects.
    float plain() { return (static_cast<float>(next()) - 128.0F) / 32.0F; }

    osg::Vec2f plain2() { return { plain(), plain() }; }

    osg::Vec3f plain3() { return { plain(), plain(), plain() }; }

    osg::Vec2f finite2() { return { finite(), finite() }; }

    osg::Vec3f finite3() { return { finite(), finite(), finite() }; }

    osg::Vec2f number2() { return { number(), number() }; }

    osg::Vec3f number3() { return { number(), number(), number() }; }

    /// Some bytes as a text, whatever they are.
    std::string text()
    {
        std::string result;
        for (unsigned left = next() % 12; left > 0; --left) {
            result.push_back(static_cast<char>(next()));
        }
        return result;
    }

private:
    const std::uint8_t* data;
    std::size_t size;
    std::size_t position = 0;
};

}  // namespace nbec::manipulator::test
