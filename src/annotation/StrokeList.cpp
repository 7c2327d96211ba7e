#include "annotation/StrokeList.h"

#include <algorithm>

namespace quillon {

StrokeList::StrokeList(std::initializer_list<DrawingStroke> strokes) {
    for (const auto& stroke : strokes) {
        append(stroke);
    }
}

const FinishedStroke* StrokeList::withOrder(std::uint64_t order) const {
    std::size_t low = 0;
    std::size_t high = m_size;
    while (low < high) {
        const std::size_t middle = low + (high - low) / 2;
        if (ref(middle)->order() < order) {
            low = middle + 1;
        } else {
            high = middle;
        }
    }
    return low < m_size && ref(low)->order() == order ? ref(low).get() : nullptr;
}

void StrokeList::append(DrawingStroke stroke) {
    const auto order = empty() ? 0 : ref(m_size - 1)->order() + 1;
    append(std::make_shared<const FinishedStroke>(std::move(stroke), order));
}

void StrokeList::append(StrokeRef stroke) {
    if (m_size % chunkSize == 0) {
        m_chunks.push_back(std::make_shared<Chunk>());
        m_chunks.back()->reserve(chunkSize);
    }
    mutableChunk(m_chunks.size() - 1).push_back(std::move(stroke));
    ++m_size;
}

void StrokeList::replace(std::size_t index, DrawingStroke stroke) {
    auto& place = mutableChunk(index / chunkSize)[index % chunkSize];
    place = std::make_shared<const FinishedStroke>(std::move(stroke), place->order());
}

void StrokeList::removeIf(const std::function<bool(const DrawingStroke&)>& predicate) {
    const StrokeList before = *this;
    std::size_t kept = 0;
    while (kept < before.size() && !predicate(before[kept])) {
        ++kept;
    }
    if (kept == before.size()) {
        return;
    }
    // The chunks in front of the first stroke that goes stay shared.
    truncate(kept);
    for (std::size_t index = kept + 1; index < before.size(); ++index) {
        if (!predicate(before[index])) {
            append(before.ref(index));
        }
    }
}

void StrokeList::clear() {
    m_chunks.clear();
    m_size = 0;
}

StrokeList::Chunk& StrokeList::mutableChunk(std::size_t index) {
    auto& chunk = m_chunks[index];
    if (chunk.use_count() > 1) {
        auto copy = std::make_shared<Chunk>();
        copy->reserve(chunkSize);
        copy->assign(chunk->begin(), chunk->end());
        chunk = std::move(copy);
    }
    return *chunk;
}

void StrokeList::truncate(std::size_t size) {
    m_chunks.resize((size + chunkSize - 1) / chunkSize);
    if (size % chunkSize != 0) {
        mutableChunk(m_chunks.size() - 1).resize(size % chunkSize);
    }
    m_size = size;
}

StrokeList::Difference StrokeList::difference(const StrokeList& before, const StrokeList& after) {
    // Both are sorted by order, and a stroke has the same order wherever it stands.
    Difference difference;
    std::size_t left = 0;
    std::size_t right = 0;
    while (left < before.size() && right < after.size()) {
        if (left == right && left % chunkSize == 0 &&
            before.m_chunks[left / chunkSize] == after.m_chunks[left / chunkSize]) {
            left = right = left + before.m_chunks[left / chunkSize]->size();
            continue;
        }
        const StrokeRef& gone = before.ref(left);
        const StrokeRef& come = after.ref(right);
        const auto order = std::min(gone->order(), come->order());
        const bool isBefore = gone->order() == order;
        const bool isAfter = come->order() == order;
        if (!isAfter) {
            difference.removed.push_back(gone);
        } else if (!isBefore) {
            difference.added.push_back(come);
        } else if (gone->stroke().id() != come->stroke().id()) {
            difference.removed.push_back(gone);
            difference.added.push_back(come);
        } else if (gone != come) {
            difference.replaced.push_back({gone, come});
        }
        left += isBefore ? 1 : 0;
        right += isAfter ? 1 : 0;
    }
    for (; left < before.size(); ++left) {
        difference.removed.push_back(before.ref(left));
    }
    for (; right < after.size(); ++right) {
        difference.added.push_back(after.ref(right));
    }
    return difference;
}

} // namespace quillon
