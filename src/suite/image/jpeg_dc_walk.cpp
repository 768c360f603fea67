// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "suite/image/jpeg_dc_walk.h"

#include "suite/image/area_scaler.h"
#include "suite/image/entropy_bytes.h"
#include "suite/image/huffman_table.h"

#include <algorithm>
#include <memory>

namespace suite
{
namespace
{

constexpr int kBlockSide = 8;
constexpr int kMostComponents = 3;

int BlocksAcross(unsigned pixels, int factor)
{
    const int side = kBlockSide * factor;
    return (static_cast<int>(pixels) + side - 1) / side;
}

bool IsKnownSampling(const jpeg_decompress_struct& info)
{
    if (info.num_components == 1)
        return true;
    const jpeg_component_info* const parts = info.comp_info;
    return parts[0].h_samp_factor <= 2 && parts[0].v_samp_factor <= 2 && parts[1].h_samp_factor == 1 &&
           parts[1].v_samp_factor == 1 && parts[2].h_samp_factor == 1 && parts[2].v_samp_factor == 1;
}

bool IsServed(const jpeg_decompress_struct& info)
{
    const bool isColourKnown = (info.num_components == 1 && info.jpeg_color_space == JCS_GRAYSCALE) ||
                               (info.num_components == kMostComponents && info.jpeg_color_space == JCS_YCbCr);
    return isColourKnown && info.progressive_mode == FALSE && info.arith_code == FALSE &&
           info.data_precision == 8 && info.comps_in_scan == info.num_components && IsKnownSampling(info);
}

// One component of the picture while the walk goes along a row of units (MCUs).
struct Component {
    const CDcTable* dc = nullptr;
    const CAcTable* ac = nullptr;
    int across = 1;  // blocks of a unit
    int down = 1;
    int quantum = 1;
    std::uint32_t prediction = 0;
    std::vector<std::uint8_t> rows[2];  // the means of the row's blocks

    bool ReadBlock(BitWindow& window, std::uint8_t& mean);
};

bool Component::ReadBlock(BitWindow& window, std::uint8_t& mean)
{
    int difference = 0;
    if (!dc->ReadDifference(window, difference))
        return false;
    prediction += static_cast<std::uint32_t>(difference);
    const int term = static_cast<std::int16_t>(prediction) * quantum;
    mean = static_cast<std::uint8_t>(std::clamp(((term + 4) >> 3) + 128, 0, 255));
    return ac->SkipBlock(window);
}

// The tables of a file by their numbers, each made when the first component asks for it.
template <typename Table> class CTableSet
{
public:
    // Null when the file has no such table or its codes make no sense.
    const Table* Get(const JHUFF_TBL* const (&codes)[NUM_HUFF_TBLS], int number)
    {
        if (number < 0 || number >= NUM_HUFF_TBLS || codes[number] == nullptr)
            return nullptr;
        if (!tables[number]) {
            auto table = std::make_unique<Table>();
            if (!table->Build(*codes[number]))
                return nullptr;
            tables[number] = std::move(table);
        }
        return tables[number].get();
    }

private:
    std::unique_ptr<Table> tables[NUM_HUFF_TBLS];
};

class CDcWalk
{
public:
    CDcWalk(const CInputFile& file, std::uint64_t dataBegin, const jpeg_decompress_struct& header,
            platform::Extent target)
        : info(header), bytes(file, dataBegin), size{BlocksAcross(header.image_width, 1),
                                                     BlocksAcross(header.image_height, 1)},
          scaler(size, target, kMostComponents)
    {
    }
    bool Run();
    const std::vector<std::uint8_t>& Pixels() const { return scaler.Pixels(); }

private:
    bool Prepare();
    bool PrepareComponent(int index);
    bool ReadUnitRow(BitWindow& window);
    bool ReadUnit(BitWindow& window, int unit);
    void HandOver(int row);

    const jpeg_decompress_struct& info;
    CEntropyBytes bytes;
    CTableSet<CDcTable> dcTables;
    CTableSet<CAcTable> acTables;
    Component components[kMostComponents];
    int unitsAcross = 0;
    int unitsDown = 0;
    unsigned untilRestart = 0;
    int nextRestart = 0;
    platform::Extent size;  // in blocks, that is in pixels of the picture made
    CAreaScaler scaler;
    std::vector<std::uint8_t> line;
};

bool CDcWalk::Prepare()
{
    const bool isGrey = info.num_components == 1;
    unitsAcross = BlocksAcross(info.image_width, isGrey ? 1 : info.comp_info[0].h_samp_factor);
    unitsDown = BlocksAcross(info.image_height, isGrey ? 1 : info.comp_info[0].v_samp_factor);
    untilRestart = info.restart_interval;
    line.assign(static_cast<std::size_t>(size.width) * kMostComponents, 128);
    for (int i = 0; i < info.num_components; ++i) {
        if (!PrepareComponent(i))
            return false;
    }
    return true;
}

bool CDcWalk::PrepareComponent(int index)
{
    const jpeg_component_info& part = info.comp_info[index];
    Component& component = components[index];
    if (part.quant_tbl_no < 0 || part.quant_tbl_no >= NUM_QUANT_TBLS ||
        info.quant_tbl_ptrs[part.quant_tbl_no] == nullptr)
        return false;
    component.quantum = info.quant_tbl_ptrs[part.quant_tbl_no]->quantval[0];
    if (info.num_components > 1) {
        component.across = part.h_samp_factor;
        component.down = part.v_samp_factor;
    }
    for (int row = 0; row < component.down; ++row)
        component.rows[row].resize(static_cast<std::size_t>(unitsAcross) * component.across);
    component.dc = dcTables.Get(info.dc_huff_tbl_ptrs, part.dc_tbl_no);
    component.ac = acTables.Get(info.ac_huff_tbl_ptrs, part.ac_tbl_no);
    return component.dc != nullptr && component.ac != nullptr;
}

bool CDcWalk::Run()
{
    if (!Prepare())
        return false;
    BitWindow window = bytes.Start();
    for (int row = 0; row < unitsDown; ++row) {
        if (!ReadUnitRow(window))
            return false;
        HandOver(row);
    }
    return true;
}

bool CDcWalk::ReadUnitRow(BitWindow& window)
{
    for (int unit = 0; unit < unitsAcross; ++unit) {
        if (info.restart_interval > 0 && untilRestart-- == 0) {
            if (!bytes.PassRestart(window, nextRestart))
                return false;
            nextRestart = (nextRestart + 1) & 7;
            untilRestart = info.restart_interval - 1;
            for (Component& component : components)
                component.prediction = 0;
        }
        if (bytes.RunsLow(window))
            bytes.Refill(window);
        if (!ReadUnit(window, unit) || bytes.IsOverrun(window))
            return false;
    }
    return true;
}

bool CDcWalk::ReadUnit(BitWindow& window, int unit)
{
    BitWindow local = window;
    for (int i = 0; i < info.num_components; ++i) {
        Component& component = components[i];
        for (int row = 0; row < component.down; ++row) {
            std::uint8_t* const means =
                component.rows[row].data() + static_cast<std::size_t>(unit) * component.across;
            for (int column = 0; column < component.across; ++column) {
                if (!component.ReadBlock(local, means[column]))
                    return false;
            }
        }
    }
    window = local;
    return true;
}

// Gives the rows of blocks of a row of units to the scaler, a chroma block to each luma block that it covers.
void CDcWalk::HandOver(int row)
{
    const Component& luma = components[0];
    const bool isColour = info.num_components > 1;
    const int shift = luma.across - 1;
    for (int i = 0; i < luma.down && row * luma.down + i < size.height; ++i) {
        std::uint8_t* out = line.data();
        for (int x = 0; x < size.width; ++x, out += kMostComponents) {
            out[0] = luma.rows[i][x];
            if (isColour) {
                out[1] = components[1].rows[0][x >> shift];
                out[2] = components[2].rows[0][x >> shift];
            }
        }
        scaler.AddRow(line.data());
    }
}

std::uint8_t Colour(double value)
{
    return static_cast<std::uint8_t>(std::clamp(value + 0.5, 0.0, 255.0));
}

std::vector<std::uint8_t> ColoursOf(const std::vector<std::uint8_t>& parts)
{
    std::vector<std::uint8_t> pixels(parts.size() / kMostComponents * 4);
    const std::uint8_t* in = parts.data();
    for (std::size_t at = 0; at < pixels.size(); at += 4, in += kMostComponents) {
        const double light = in[0];
        const double blueness = in[1] - 128;
        const double redness = in[2] - 128;
        pixels[at] = Colour(light + 1.772 * blueness);
        pixels[at + 1] = Colour(light - 0.344136 * blueness - 0.714136 * redness);
        pixels[at + 2] = Colour(light + 1.402 * redness);
    }
    return pixels;
}

}  // namespace

std::optional<std::vector<std::uint8_t>> WalkDcTerms(const CInputFile& file, std::uint64_t dataBegin,
                                                     const jpeg_decompress_struct& info,
                                                     platform::Extent target)
{
    if (!IsServed(info))
        return std::nullopt;
    const auto walk = std::make_unique<CDcWalk>(file, dataBegin, info, target);
    if (!walk->Run())
        return std::nullopt;
    return ColoursOf(walk->Pixels());
}

}  // namespace suite
