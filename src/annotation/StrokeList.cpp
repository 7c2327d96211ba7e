#include "annotation/StrokeList.h"

#include <algorithm>
#include <unordered_set>

namespace quillon {

StrokeList::StrokeList(std::initializer_list<DrawingStroke> strokes) {
    for (const auto& stroke : strokes) {
        append(stroke);
    }
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
    const std::size_t common = std::min(before.size(), after.size());
    std::size_t front = 0;
    while (front < common) {
        const std::size_t chunk = front / chunkSize;
        if (front % chunkSize == 0 && before.m_chunks[chunk] == after.m_chunks[chunk]) {
            front = std::min(front + chunkSize, common);
        } else if (before.ref(front) == after.ref(front)) {
            ++front;
        } else {
            break;
        }
    }

    Difference difference;
    difference.isPureAppend = front == before.size();
    std::unordered_set<const FinishedStroke*> present;
    for (std::size_t index = front; index < after.size(); ++index) {
        present.insert(after.ref(index).get());
    }
    for (std::size_t index = front; index < before.size(); ++index) {
        if (present.erase(before.ref(index).get()) == 0) {
            difference.removed.push_back(before.ref(index));
        }
    }
    for (std::size_t index = front; index < after.size(); ++index) {
        if (present.contains(after.ref(index).get())) {
            difference.added.push_back(after.ref(index));
        }
    }
    return difference;
}

} // namespace quillon
