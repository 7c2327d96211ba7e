#pragma once

#include "annotation/FinishedStroke.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <initializer_list>
#include <iterator>
#include <memory>
#include <vector>

namespace quillon {

/// A list of strokes with value semantics in which a copy costs next to nothing: strokes stand in
/// chunks, and copies share the chunks until one of them changes. A snapshot of ten thousand
/// strokes is forty references, and adding one stroke afterwards copies the last chunk alone.
///
/// Every chunk but the last is full. The order of the strokes grows from one to the next. The list
/// is not thread-safe.
class StrokeList {
public:
    static constexpr std::size_t chunkSize = 256;

    StrokeList() = default;
    StrokeList(std::initializer_list<DrawingStroke> strokes);

    std::size_t size() const { return m_size; }
    bool empty() const { return m_size == 0; }
    const StrokeRef& ref(std::size_t index) const {
        return (*m_chunks[index / chunkSize])[index % chunkSize];
    }
    const DrawingStroke& operator[](std::size_t index) const { return ref(index)->stroke(); }

    /// The stroke of this order, or null.
    const FinishedStroke* withOrder(std::uint64_t order) const;

    void append(DrawingStroke stroke);
    /// Stores a stroke in the place of another.
    void replace(std::size_t index, DrawingStroke stroke);
    /// Removes every stroke for which `predicate` holds; the others keep their order.
    void removeIf(const std::function<bool(const DrawingStroke&)>& predicate);
    void clear();

    class Iterator {
    public:
        using value_type = DrawingStroke;
        using difference_type = std::ptrdiff_t;

        Iterator() = default;
        const DrawingStroke& operator*() const { return (*m_list)[m_index]; }
        const DrawingStroke* operator->() const { return &**this; }
        Iterator& operator++() {
            ++m_index;
            return *this;
        }
        Iterator operator++(int) {
            auto before = *this;
            ++m_index;
            return before;
        }
        friend bool operator==(const Iterator&, const Iterator&) = default;

    private:
        friend class StrokeList;
        Iterator(const StrokeList* list, std::size_t index)
            : m_list(list)
            , m_index(index) {}

        const StrokeList* m_list = nullptr;
        std::size_t m_index = 0;
    };

    Iterator begin() const { return {this, 0}; }
    Iterator end() const { return {this, m_size}; }

    /// What leads from one list to another: every stroke that stands in one of them alone, in
    /// order.
    struct Difference {
        struct Replacement {
            StrokeRef before;
            StrokeRef after;
        };
        std::vector<StrokeRef> removed;
        std::vector<StrokeRef> added;
        /// Two forms of the same stroke.
        std::vector<Replacement> replaced;

        bool isEmpty() const { return removed.empty() && added.empty() && replaced.empty(); }
    };
    /// Leaves out the chunks that the two share.
    static Difference difference(const StrokeList& before, const StrokeList& after);

private:
    using Chunk = std::vector<StrokeRef>;

    void append(StrokeRef stroke);
    Chunk& mutableChunk(std::size_t index);
    void truncate(std::size_t size);

    std::vector<std::shared_ptr<Chunk>> m_chunks;
    std::size_t m_size = 0;
};

} // namespace quillon
