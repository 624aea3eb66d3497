#include "Landscape.h"

#include <algorithm>
#include <cmath>

namespace veskar
{

namespace
{

struct Colour
{
    float red;
    float green;
    float blue;
};

constexpr Colour operator*(Colour colour, float by)
{
    return {colour.red * by, colour.green * by, colour.blue * by};
}

constexpr Colour operator+(Colour left, Colour right)
{
    return {left.red + right.red, left.green + right.green, left.blue + right.blue};
}

constexpr Colour Mix(Colour from, Colour to, float share)
{
    return from * (1 - share) + to * share;
}

struct Palette
{
    Colour zenith;
    Colour sky;
    Colour horizon;
    Colour glow;
    Colour sun;
    Colour farHill;
    Colour nearHill;
    float stars;
};

constexpr Palette EVENING{{22, 30, 66},    {92, 66, 122},  {236, 128, 92}, {255, 205, 130},
                          {255, 244, 214}, {124, 84, 118}, {20, 22, 40},   1};
constexpr Palette SNOW{{196, 220, 246}, {222, 236, 250}, {248, 250, 253}, {255, 254, 248},
                       {255, 255, 255}, {226, 234, 245}, {250, 252, 255}, 0};

// Positions and sizes, as fractions of the picture's height.
constexpr float WATERLINE = 0.70F;
constexpr float SUN_X = 1.16F;
constexpr float SUN_Y = 0.585F;
constexpr float SUN_RADIUS = 0.048F;
constexpr int RANGES = 5;

float Smooth(float from, float to, float value)
{
    const float share = std::clamp((value - from) / (to - from), 0.0F, 1.0F);
    return share * share * (3 - 2 * share);
}

/** A number in 0..1 that looks random and is always the same for the same place. */
float NoiseAt(int x, int y)
{
    auto bits = static_cast<uint32_t>(x) * 374761393U + static_cast<uint32_t>(y) * 668265263U;
    bits = (bits ^ (bits >> 13)) * 1274126177U;
    return static_cast<float>((bits ^ (bits >> 16)) & 0xffffU) / 65535.0F;
}

float SmoothNoise(float at, int seed)
{
    const float cell = std::floor(at);
    const int index = static_cast<int>(cell);
    return NoiseAt(index, seed) + (NoiseAt(index + 1, seed) - NoiseAt(index, seed)) * Smooth(0, 1, at - cell);
}

/** The ridge of one range of hills, from the farthest (0) to the nearest. */
float RidgeAt(float x, int range)
{
    float height = 0;
    float size = 0.5F;
    float places = 2.2F + 0.5F * static_cast<float>(range);
    for (int octave = 0; octave < 6; ++octave)
    {
        height += size * SmoothNoise(x * places, range * 16 + octave);
        size *= 0.5F;
        places *= 2.1F;
    }
    const float nearness = static_cast<float>(range) / (RANGES - 1);
    return WATERLINE - (0.30F - 0.22F * nearness) * height - 0.012F * (1 - nearness);
}

/** Everything above the water. Coordinates are in units of the picture's height. */
class Scene
{
public:
    Scene(int width, int height, const Palette& palette) : m_palette(palette), m_height(static_cast<float>(height))
    {
        for (int range = 0; range < RANGES; ++range)
        {
            std::vector<float>& ridge = m_ridges[range];
            ridge.reserve(static_cast<size_t>(width));
            for (int column = 0; column < width; ++column)
            {
                ridge.push_back(RidgeAt(static_cast<float>(column) / m_height, range));
            }
        }
    }

    Colour At(int column, float y) const
    {
        for (int range = RANGES - 1; range >= 0; --range)
        {
            if (y > m_ridges[range][static_cast<size_t>(column)])
            {
                return m_Hill(range, y - m_ridges[range][static_cast<size_t>(column)]);
            }
        }
        return m_Sky(column, y);
    }

private:
    Colour m_Hill(int range, float depth) const
    {
        const float nearness = static_cast<float>(range) / (RANGES - 1);
        const Colour body = Mix(m_palette.farHill, m_palette.nearHill, std::pow(nearness, 0.7F));
        // Mist lies in the valleys before the next range.
        return Mix(body, Mix(m_palette.horizon, body, nearness), 0.55F * Smooth(0.0F, 0.16F, depth));
    }

    Colour m_Sky(int column, float y) const
    {
        const float x = static_cast<float>(column) / m_height;
        const float level = y / WATERLINE;
        Colour colour = Mix(m_palette.zenith, m_palette.sky, Smooth(0.0F, 0.62F, level));
        colour = Mix(colour, m_palette.horizon, Smooth(0.42F, 0.92F, level));
        const float distance = std::hypot(x - SUN_X, y - SUN_Y);
        colour = Mix(colour, m_palette.glow, 0.85F * std::exp(-distance * 4.2F));
        colour = Mix(colour, Mix(m_palette.glow, m_palette.horizon, 0.35F),
                     0.55F * Cloud(x, y) * Smooth(0.15F, 0.7F, level));
        colour = Mix(colour, m_palette.sun, 1 - Smooth(SUN_RADIUS - 0.0015F, SUN_RADIUS + 0.0015F, distance));
        const float star = m_palette.stars * m_Star(column, y) * (1 - Smooth(0.05F, 0.5F, level));
        return colour + Colour{255, 255, 255} * star;
    }

    static float Cloud(float x, float y)
    {
        const float band = SmoothNoise(y * 26 + SmoothNoise(x * 1.7F, 91) * 3, 92);
        return Smooth(0.55F, 0.95F, band * (0.55F + 0.6F * SmoothNoise(x * 2.3F + y * 5, 93)));
    }

    /** Few cells of the sky hold a star, each a soft dot. */
    float m_Star(int column, float y) const
    {
        const float cell = m_height / 60;
        const float across = static_cast<float>(column) / cell;
        const float down = y * m_height / cell;
        const int cellX = static_cast<int>(across);
        const int cellY = static_cast<int>(down);
        if (NoiseAt(cellX, 1000 + cellY) < 0.82F)
        {
            return 0;
        }
        const float dx = across - static_cast<float>(cellX) - 0.2F - 0.6F * NoiseAt(cellX, 2000 + cellY);
        const float dy = down - static_cast<float>(cellY) - 0.2F - 0.6F * NoiseAt(cellX, 3000 + cellY);
        const float size = 0.03F + 0.05F * NoiseAt(cellX, 4000 + cellY);
        return 0.8F * std::exp(-(dx * dx + dy * dy) / (size * size));
    }

    const Palette& m_palette;
    float m_height;
    std::vector<float> m_ridges[RANGES];
};

/** The lake mirrors the scene, darker towards the viewer and broken by ripples that grow with nearness. */
Colour Water(const Scene& scene, const Palette& palette, int column, int row, int width, int height)
{
    const float y = static_cast<float>(row) / static_cast<float>(height);
    const float depth = (y - WATERLINE) / (1 - WATERLINE);
    const float x = static_cast<float>(column) / static_cast<float>(height);
    const float wave = SmoothNoise(x * (9 - 5 * depth) + std::floor(depth * 90) * 7.31F, 77) - 0.5F;
    const float mirrored = WATERLINE - (y - WATERLINE) * 1.05F + wave * 0.035F * (0.15F + depth);
    const int shifted = column + static_cast<int>(wave * 26 * depth * static_cast<float>(height) / 1080);
    const Colour seen = scene.At(std::clamp(shifted, 0, width - 1), std::clamp(mirrored, 0.0F, WATERLINE - 0.002F));
    return Mix(seen, palette.zenith, 0.22F + 0.45F * depth) +
           palette.glow * (0.05F * std::max(0.0F, wave) * (1 - depth));
}

uint32_t Packed(Colour colour, float dither)
{
    const auto level = [dither](float value)
    {
        return static_cast<uint32_t>(std::clamp(value + dither, 0.0F, 255.0F));
    };
    return level(colour.red) << 16 | level(colour.green) << 8 | level(colour.blue);
}

} // namespace

std::vector<uint32_t> DrawLandscape(int width, int height, Daylight daylight)
{
    const Palette& palette = daylight == Daylight::Snow ? SNOW : EVENING;
    const Scene scene(width, height, palette);
    std::vector<uint32_t> pixels;
    pixels.reserve(static_cast<size_t>(width) * static_cast<size_t>(height));
    for (int row = 0; row < height; ++row)
    {
        const float y = static_cast<float>(row) / static_cast<float>(height);
        for (int column = 0; column < width; ++column)
        {
            const Colour colour =
                y < WATERLINE ? scene.At(column, y) : Water(scene, palette, column, row, width, height);
            // Dithered, because long gradients would show bands.
            pixels.push_back(Packed(colour, NoiseAt(column, row)));
        }
    }
    return pixels;
}

} // namespace veskar
