#pragma once

#include "datatypes/Point.h"
#include "timeline/AbstractIMFile.h"

namespace tarn {

/// A shape with a text that points at something. The host draws it; a source is optional.
class TARN_API Callout : public AbstractIMFile
{
public:
    /// An empty `source` is accepted with any track number: the callout then has no size.
    /// @throws TarnMediaLibException "trying to make an AbstractIMFile with an invalid source
    /// track"
    Callout(long long start, long long duration, boost::weak_ptr<ThreadSafe const> const& project,
            boost::shared_ptr<Source const> const& source, unsigned int trackNumber);
    Callout(long long start, long long duration, boost::weak_ptr<ThreadSafe const> const& project,
            Rect<float> const& rect, std::string const& fileName);

    /// The point that the callout points at, in the media's own pixels.
    boost::shared_ptr<Attribute<Point>> hotSpotAttr() { return m_hotSpot; }
    boost::shared_ptr<Attribute<Point> const> hotSpotAttr() const { return m_hotSpot; }
    /// Where the text goes, in the media's own pixels.
    boost::shared_ptr<Attribute<Rect<float>>> textRectAttr() { return m_textRect; }
    boost::shared_ptr<Attribute<Rect<float>> const> textRectAttr() const { return m_textRect; }
    /// The text; it holds until the next key frame.
    boost::shared_ptr<LeftParameter<std::string>> textParam() { return m_text; }
    boost::shared_ptr<LeftParameter<std::string> const> textParam() const { return m_text; }

    void receiveDispatcher(ConstMediaDispatcher* dispatcher) const override;
    void receiveDispatcher(MediaDispatcher* dispatcher) override;
    bool isInstanceOf(boost::shared_ptr<Source const> const& source) const override;
    Callout* clone() const override;

    std::string description() const override;
    int numParameters() const override;
    int numAttributes() const override;
    boost::shared_ptr<MTVector<boost::shared_ptr<ParameterInterface const>>> parameterVector()
        const override;
    void xmlOfParameters(XMLable::Options& options, int indent) const override;
    void xmlOfAttributes(XMLable::Options& options, int indent) const override;
    void xmlName(XMLable::Options& options) const override;
    void xmlAttributes(XMLable::Options& options) const override;

protected:
    Callout(Callout const& other);

private:
    friend class MediaImpl;  // its cloneOf() copies

    boost::shared_ptr<Attribute<Point>> m_hotSpot;
    boost::shared_ptr<Attribute<Rect<float>>> m_textRect;
    boost::shared_ptr<LeftParameter<std::string>> m_text;
};

}  // namespace tarn
