#pragma once

namespace quillon {

/// Tells work that can wait when to wait, so that a motion of the pen finds the processor, the
/// server and the compositor free for its picture.
///
/// 1. The picture of a motion begins a rest.
/// 2. After a rest there is as much time for work, in which motions begin none, however fast they
///    come.
/// 3. What the work itself has put on the screen begins one in any case: of that there is never
///    more than one piece under way.
class PenRest {
public:
    /// In seconds; some three times what server and compositor need for a picture.
    static constexpr double length = 0.003;

    void motionShown(double now) {
        if (now >= m_end + length) {
            m_end = now + length;
        }
    }
    void otherShown(double now) { m_end = now + length; }

    /// How long there is still to wait; zero or less when it is over.
    double remaining(double now) const { return m_end - now; }

private:
    double m_end = 0;
};

} // namespace quillon
