#include "timeline/MediaImpl.h"

#include "datatypes/XmlText.h"
#include "edgemods/AuxEdgeModInfo.h"
#include "edgemods/EdgeModCloneUtil.h"
#include "edgemods/EdgeModFunc.h"
#include "exceptions/TarnMediaLibException.h"
#include "parameters/Parameter.h"

#include <algorithm>
#include <memory>
#include <utility>

namespace tarn {

namespace {

using ModificationList = std::list<EdgeModification>;

/// Marks, on this thread and for its own life, a media's parameter as being transformed.
///
/// A slide asks for its media's transform, and with it for the very parameter that it is bending.
/// The marks are a chain on the stack, so that they cost nothing and end with any exception.
class TransformInProgress
{
public:
    TransformInProgress(MediaImpl const* media, ParameterInterface const* parameter)
        : m_media(media), m_parameter(parameter), m_outer(s_innermost)
    {
        s_innermost = this;
    }
    ~TransformInProgress() { s_innermost = m_outer; }
    TransformInProgress(TransformInProgress const&) = delete;
    TransformInProgress& operator=(TransformInProgress const&) = delete;

    static bool contains(MediaImpl const* media, ParameterInterface const* parameter)
    {
        for (TransformInProgress const* mark = s_innermost; mark; mark = mark->m_outer) {
            if (mark->m_media == media && mark->m_parameter == parameter)
                return true;
        }
        return false;
    }

private:
    static thread_local TransformInProgress const* s_innermost;

    MediaImpl const* m_media;
    ParameterInterface const* m_parameter;
    TransformInProgress const* m_outer;
};

thread_local TransformInProgress const* TransformInProgress::s_innermost = nullptr;

/// What one edge has room for, given the length asked for on the other edge. All edit units.
long long limitedEdgeLength(long long duration, long long length, long long otherLength)
{
    long long sum = 0;
    bool const sumOverflows = __builtin_add_overflow(length, otherLength, &sum);
    if (sumOverflows ? length < 0 : duration >= sum)
        return length;
    long long const shorter = std::min(length, otherLength);
    long long twiceShorter = 0;
    bool const twiceOverflows = __builtin_mul_overflow(2LL, shorter, &twiceShorter);
    if (twiceOverflows ? shorter > 0 : twiceShorter > duration)
        return duration / 2;
    return length <= otherLength ? length : duration - otherLength;
}

template <class P>
bool isFor(EdgeModification const& modification, boost::shared_ptr<P> const& parameter)
{
    return modification.parameter() == parameter;
}

template <class P>
ModificationList::const_iterator findFor(ModificationList const& modifications,
                                         boost::shared_ptr<P> const& parameter)
{
    return std::find_if(modifications.begin(), modifications.end(),
                        [&parameter](EdgeModification const& m) { return isFor(m, parameter); });
}

bool bends(ModificationList const& modifications, ParameterInterface const* parameter)
{
    return std::any_of(modifications.begin(), modifications.end(),
                       [parameter](EdgeModification const& modification) {
                           return modification.isFor(parameter);
                       });
}

void throwIfAlreadyModForParam(EdgeModification const& modification,
                               ModificationList const& modifications)
{
    if (findFor(modifications, modification.parameter()) != modifications.end()) {
        throw TarnMediaLibException("trying to add an edge mod for a parameter already with a mod");
    }
}

EdgeModification takeOut(ModificationList& modifications,
                         boost::shared_ptr<Parameter<double> const> const& parameter,
                         char const* refusal)
{
    ModificationList::const_iterator const found = findFor(modifications, parameter);
    if (found == modifications.end())
        throw TarnMediaLibException(refusal);
    ModificationList removed;
    removed.splice(removed.end(), modifications, found);
    return std::move(removed.front());
}

/// Those of `originals` that have a parameter on `target`, in order, for a list of `target`'s.
ModificationList retargeted(ModificationList const& originals, Media* target)
{
    ModificationList result;
    for (EdgeModification const& original : originals) {
        EdgeModification const copy = EdgeModCloneUtil::createEdgeMod(target, original);
        if (copy.parameter() && findFor(result, copy.parameter()) == result.end())
            result.push_back(copy);
    }
    return result;
}

/// Whether it was ever set, though what it pointed to may be gone.
template <class T>
bool isSet(boost::weak_ptr<T> const& pointer)
{
    boost::weak_ptr<T> const unset;
    return pointer.owner_before(unset) || unset.owner_before(pointer);
}

void aimFunctionsAt(ModificationList& modifications,
                    boost::shared_ptr<VisualMedia const> const& media)
{
    for (EdgeModification& modification : modifications) {
        AuxEdgeModInfo const* const known = modification.func().auxInfo();
        if (!known || !isSet(known->visualMixer()) || !isSet(known->visualMedia()))
            continue;
        AuxEdgeModInfo info(*known);
        info.setVisualMedia(media);
        std::unique_ptr<EdgeModFunc> const func(modification.func().clone());
        func->setAuxInfo(info);
        modification = EdgeModification(modification.parameter(), *func);
    }
}

void printEdgeModXML(EdgeModification const& modification, XMLable::Options& options, int indent)
{
    XmlText out(options);
    out.indent(indent) << "<EdgeMod parameter=\"";
    if (modification.parameter())
        out << modification.parameter()->xmlIdent();
    // Kept so: the function's element follows on the same line.
    out << "\">";
    modification.func().toXML(options, indent + 1, "");
    out.indent(indent) << "</EdgeMod>\n";
}

}  // namespace

/// Both edges' lengths as they fit into the media, and its duration; edit units.
struct MediaImpl::EdgeRoom
{
    long long left;
    long long right;
    long long duration;
};

MediaImpl::EdgeRoom MediaImpl::edgeRoom() const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    long long const duration = m_place.range.duration;
    return EdgeRoom{limitedEdgeLength(duration, m_leftEdgeLength, m_rightEdgeLength),
                    limitedEdgeLength(duration, m_rightEdgeLength, m_leftEdgeLength), duration};
}

double MediaImpl::doubleParametricTransform(
    boost::shared_ptr<ParameterInterface const> const& parameter, double value, double time) const
{
    EdgeRoom const room = edgeRoom();
    if (room.left > 0 && time < static_cast<double>(room.left)) {
        double const position = time / static_cast<double>(room.left);
        value = transformWithEdgeMods(m_leftEdgeMods, parameter, value, position);
    }
    // Not reckoned with an empty right edge: the difference need not exist for a wild stored
    // length.
    if (room.right > 0) {
        double const rightStart = static_cast<double>(room.duration - room.right);
        if (time > rightStart) {
            double const position = (time - rightStart) / static_cast<double>(room.right);
            value = transformWithEdgeMods(m_rightEdgeMods, parameter, value, position);
        }
    }
    return value;
}

bool MediaImpl::showsAsStored(ParameterInterface const* parameter) const
{
    return !parameter || (!bends(m_leftEdgeMods, parameter) && !bends(m_rightEdgeMods, parameter));
}

double MediaImpl::transformWithEdgeMods(
    ModificationList const& modifications,
    boost::shared_ptr<ParameterInterface const> const& parameter, double value,
    double position) const
{
    // Run without the lock, so it may run long after the lists have changed.
    boost::shared_ptr<EdgeModFunc const> func;
    {
        ReadWriteMutex::ScopedReadLock lock(mutex());
        ModificationList::const_iterator const found = findFor(modifications, parameter);
        if (found == modifications.end() || TransformInProgress::contains(this, parameter.get()))
            return value;
        func = found->sharedFunc();
    }
    TransformInProgress const mark(this, parameter.get());
    return func->execute(position, value);
}

void MediaImpl::setLeftEdgeModificationLength(long long length)
{
    m_leftEdgeLength = length;
    notify();
}

void MediaImpl::setRightEdgeModificationLength(long long length)
{
    m_rightEdgeLength = length;
    notify();
}

long long MediaImpl::leftEdgeModificationLength() const
{
    return edgeRoom().left;
}

long long MediaImpl::rightEdgeModificationLength() const
{
    return edgeRoom().right;
}

ModificationList MediaImpl::leftEdgeModifications() const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return m_leftEdgeMods;
}

ModificationList MediaImpl::rightEdgeModifications() const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return m_rightEdgeMods;
}

void MediaImpl::addLeftEdgeModification(EdgeModification const& modification)
{
    throwIfAlreadyModForParam(modification, m_leftEdgeMods);
    m_leftEdgeMods.push_back(modification);
    notify();
}

void MediaImpl::addRightEdgeModification(EdgeModification const& modification)
{
    throwIfAlreadyModForParam(modification, m_rightEdgeMods);
    m_rightEdgeMods.push_back(modification);
    notify();
}

EdgeModification MediaImpl::removeLeftEdgeModification(
    boost::shared_ptr<Parameter<double> const> const& parameter)
{
    EdgeModification removed =
        takeOut(m_leftEdgeMods, parameter, "trying to remove non existant left edge mod");
    notify();
    return removed;
}

EdgeModification MediaImpl::removeRightEdgeModification(
    boost::shared_ptr<Parameter<double> const> const& parameter)
{
    EdgeModification removed =
        takeOut(m_rightEdgeMods, parameter, "trying to remove non existant right edge mod");
    notify();
    return removed;
}

void MediaImpl::copyEdgeModifications(MediaImpl const& other)
{
    // Most have none.
    if (other.hasEdgeFunctions()) {
        m_leftEdgeMods = retargeted(other.m_leftEdgeMods, this);
        m_rightEdgeMods = retargeted(other.m_rightEdgeMods, this);
    }
}

void MediaImpl::aimEdgeFunctionsAt(boost::shared_ptr<VisualMedia const> const& media)
{
    aimFunctionsAt(m_leftEdgeMods, media);
    aimFunctionsAt(m_rightEdgeMods, media);
}

void MediaImpl::printEdgeModsXML(XMLable::Options& options, int indent) const
{
    XmlText out(options);
    out.indent(indent) << "<LeftEdgeMods length=\"" << leftEdgeModificationLength() << "\">\n";
    for (EdgeModification const& modification : leftEdgeModifications())
        printEdgeModXML(modification, options, indent + 1);
    out.indent(indent) << "</LeftEdgeMods>\n";
    out.indent(indent) << "<RightEdgeMods length=\"" << rightEdgeModificationLength() << "\">\n";
    for (EdgeModification const& modification : rightEdgeModifications())
        printEdgeModXML(modification, options, indent + 1);
    out.indent(indent) << "</RightEdgeMods>\n";
}

}  // namespace tarn
