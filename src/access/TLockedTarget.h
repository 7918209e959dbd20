#pragma once

/// The object behind a façade that locks. It can only be reached while the façade's lock is held.
///
/// By() locks and returns an access that unlocks at the end of the full expression, also when the call throws. So a
/// forwarder is one line and cannot forget the lock:
///
///     QString TSomeProxy::GetName() const { return m_Target.By(*this)->GetName(); }
///
/// @tparam Target the object forwarded to.
template <class Target>
class TLockedTarget
{
public:
    explicit TLockedTarget(Target& target) : m_Target(&target) {}

    template <class Facade>
    class TAccess
    {
    public:
        TAccess(Facade& facade, Target& target) : m_Facade(facade), m_Target(target) { m_Facade.Lock(); }
        ~TAccess() { m_Facade.Unlock(); }
        TAccess(const TAccess&) = delete;
        TAccess& operator=(const TAccess&) = delete;

        Target* operator->() const { return &m_Target; }

    private:
        Facade& m_Facade;
        Target& m_Target;
    };

    template <class Facade>
    TAccess<Facade> By(Facade& facade) const
    {
        return TAccess<Facade>(facade, *m_Target);
    }

private:
    Target* m_Target;
};
