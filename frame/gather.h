// Gathers: one value of a table for each lane. The offsets leave the unit by pextrw, one for each lane, and not
// through memory: a store of the unit and narrow loads behind it would stand on the dependency chain. (Long kernels
// that wait for execution units do better with that.) The values come by scalar loads and are merged by unpacking.
//
//   LaneOffsets at = offsets_of(index << 4);            rows of 16 bytes, four columns
//   F4 head = gather(&data.table[0].head, at);
//   F4 tail = gather(&data.table[0].tail, at);
//
// In tables of single floats the address scales the index: gather_indexed(data.table, offsets_of(index)).
#pragma once

#include "frame/units.h"

namespace zorv {

// The offset (or index) of each lane in a general register.
struct LaneOffsets {
    uint32_t lane[4];
};
struct LaneOffsets2 {
    uint32_t lane[2];
};

// Lanes that hold 0 to 65,535: the low word is the whole value.
inline LaneOffsets offsets_of(I4 lanes) {
    __m128i unit = reinterpret_cast<__m128i>(lanes);
    return {{static_cast<uint32_t>(_mm_extract_epi16(unit, 0)), static_cast<uint32_t>(_mm_extract_epi16(unit, 2)),
             static_cast<uint32_t>(_mm_extract_epi16(unit, 4)), static_cast<uint32_t>(_mm_extract_epi16(unit, 6))}};
}
// The same through memory: some cycles later, but without the two operations that each pextrw costs the arithmetic.
inline LaneOffsets offsets_through_memory(I4 lanes) {
    LaneOffsets offsets;
    static_assert(sizeof offsets == sizeof lanes);
    alignas(16) char slots[sizeof lanes];
    __builtin_memcpy(slots, &lanes, sizeof lanes);
    asm("" : "+m"(slots));  // else the compiler extracts the lanes by shuffles
    __builtin_memcpy(&offsets, slots, sizeof offsets);
    return offsets;
}
// Of 64-bit lanes: the low half of lane 0, which comes out more cheaply whole, and the low word of lane 1.
inline LaneOffsets2 offsets_of(L2 lanes) {
    __m128i unit = reinterpret_cast<__m128i>(lanes);
    return {{static_cast<uint32_t>(_mm_cvtsi128_si32(unit)), static_cast<uint32_t>(_mm_extract_epi16(unit, 4))}};
}
// The low words alone, whatever stands above them.
inline LaneOffsets2 offsets_of_words(L2 lanes) {
    __m128i unit = reinterpret_cast<__m128i>(lanes);
    return {{static_cast<uint32_t>(_mm_extract_epi16(unit, 0)), static_cast<uint32_t>(_mm_extract_epi16(unit, 4))}};
}

// Where row 0 of a table would stand whose first row is that of another index: the address of the load absorbs the
// difference. (Subtracted from the offsets, it would tempt the compiler to shuffle them back into a unit.)
template <class Row>
inline const Row* counted_from(uint32_t first, const Row* rows) {
    // NOLINTNEXTLINE(performance-no-int-to-ptr): no array begins there
    return reinterpret_cast<const Row*>(reinterpret_cast<uintptr_t>(rows) - first * sizeof(Row));
}

template <class Lane>
inline const Lane& load_at(const Lane* column, uint32_t offset) {
    return *reinterpret_cast<const Lane*>(reinterpret_cast<const char*>(column) + offset);
}

// The lane's value of a column that begins at `column`, by byte offsets of rows.
template <class Lane>
inline Vector<Lane, 4> gather(const Lane* column, LaneOffsets at) {
    static_assert(sizeof(Lane) == 4);
    return {load_at(column, at.lane[0]), load_at(column, at.lane[1]), load_at(column, at.lane[2]),
            load_at(column, at.lane[3])};
}
template <class Lane>
inline Vector<Lane, 2> gather(const Lane* column, LaneOffsets2 at) {
    static_assert(sizeof(Lane) == 8);
    return {load_at(column, at.lane[0]), load_at(column, at.lane[1])};
}

// The same by index, in a table of nothing but this column: no shift for the offset.
template <class Lane>
inline Vector<Lane, 4> gather_indexed(const Lane* table, LaneOffsets index) {
    static_assert(sizeof(Lane) == 4);
    return {table[index.lane[0]], table[index.lane[1]], table[index.lane[2]], table[index.lane[3]]};
}
template <class Lane>
inline Vector<Lane, 2> gather_indexed(const Lane* table, LaneOffsets2 index) {
    static_assert(sizeof(Lane) == 8);
    return {table[index.lane[0]], table[index.lane[1]]};
}

// Rows of four floats, aligned to 16 bytes: one load for each lane, and the four columns by transposing.
struct Columns {
    F4 column[4];
};
inline Columns gather_rows(const float* table, LaneOffsets at) {
    auto row = [&](int lane) { return _mm_load_ps(&load_at(table, at.lane[lane])); };
    __m128 row0 = row(0), row1 = row(1), row2 = row(2), row3 = row(3);
    _MM_TRANSPOSE4_PS(row0, row1, row2, row3);
    return {{row0, row1, row2, row3}};
}

// Rows of doubles, aligned to 16 bytes, two columns side by side: one load for each lane, and unpacking.
struct ColumnPair {
    D2 first, second;
};
inline ColumnPair gather_pair(const double* columns, LaneOffsets2 at) {
    __m128d row0 = _mm_load_pd(&load_at(columns, at.lane[0])), row1 = _mm_load_pd(&load_at(columns, at.lane[1]));
    return {_mm_unpacklo_pd(row0, row1), _mm_unpackhi_pd(row0, row1)};
}

// Rows of two columns side by side, of whatever types: 64-bit ones, aligned to 16 bytes, seen as doubles, or 32-bit
// ones, seen as floats.
template <class Row>
inline ColumnPair gather_pair(const Row* rows, LaneOffsets2 at) {
    static_assert(sizeof(Row) == 16);
    return gather_pair(reinterpret_cast<const double*>(rows), at);
}
struct FloatColumnPair {
    F4 first, second;
};
template <class Row>
inline FloatColumnPair gather_pair(const Row* rows, LaneOffsets at) {
    static_assert(sizeof(Row) == 8);
    auto row = [&](int lane) { return reinterpret_cast<const __m64*>(&load_at(rows, at.lane[lane])); };
    __m128 rows01 = _mm_loadh_pi(_mm_loadl_pi(_mm_setzero_ps(), row(0)), row(1));
    __m128 rows23 = _mm_loadh_pi(_mm_loadl_pi(_mm_setzero_ps(), row(2)), row(3));
    return {_mm_shuffle_ps(rows01, rows23, 0x88), _mm_shuffle_ps(rows01, rows23, 0xdd)};
}

// Four float lanes that read rows of doubles: lanes 0 and 1 in the low unit, 2 and 3 in the high one.
inline D4 gather_wide(const double* column, LaneOffsets at) {
    return {gather(column, LaneOffsets2{{at.lane[0], at.lane[1]}}),
            gather(column, LaneOffsets2{{at.lane[2], at.lane[3]}})};
}
struct WideColumnPair {
    D4 first, second;
};
inline WideColumnPair gather_wide_pair(const double* columns, LaneOffsets at) {
    ColumnPair low = gather_pair(columns, LaneOffsets2{{at.lane[0], at.lane[1]}});
    ColumnPair high = gather_pair(columns, LaneOffsets2{{at.lane[2], at.lane[3]}});
    return {{low.first, high.first}, {low.second, high.second}};
}

}  // namespace zorv
