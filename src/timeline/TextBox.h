#pragma once

#include "timeline/ImageMedia.h"

namespace tarn {

/// A text of a given size, drawn by the host. It has no file.
class TARN_API TextBox : public ImageMedia
{
public:
    /// `text` holds at all times until another key frame is added.
    TextBox(std::string const& text, long long start, long long duration, double mediaStartLimit,
            double mediaEndLimit, boost::weak_ptr<ThreadSafe const> const& project, float width = 0,
            float height = 0);

    double width() const override;
    double height() const override;

    /// The const forms take the read lock.
    boost::shared_ptr<LeftParameter<std::string>> text();
    boost::shared_ptr<LeftParameter<std::string> const> text() const;
    /// The size, in pixels of the picture plane.
    boost::shared_ptr<Attribute<float>> widthAttr();
    boost::shared_ptr<Attribute<float> const> widthAttr() const;
    /// The size, in pixels of the picture plane.
    boost::shared_ptr<Attribute<float>> heightAttr();
    boost::shared_ptr<Attribute<float> const> heightAttr() const;

    void receiveDispatcher(ConstMediaDispatcher* dispatcher) const override;
    void receiveDispatcher(MediaDispatcher* dispatcher) override;
    /// False for every source.
    bool isInstanceOf(boost::shared_ptr<Source const> const& source) const override;
    TextBox* clone() const override;

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
    TextBox(TextBox const& other);

private:
    friend class MediaImpl;  // its cloneOf() copies

    boost::shared_ptr<LeftParameter<std::string>> m_text;
    boost::shared_ptr<Attribute<float>> m_width;
    boost::shared_ptr<Attribute<float>> m_height;
};

}  // namespace tarn
