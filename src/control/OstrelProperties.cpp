#include "control/OstrelProperties.h"

#include <algorithm>

#include "ui/Dialogs.h"
#include "ui/PropertiesForm.h"

namespace ostrel {

OstrelProperties::OstrelProperties(Platform& platform) : platform_(platform) {}

void OstrelProperties::AddProperty(const Text& Name, const Text& Value) {
    guard_([&] { pairs_.push_back({Name, Value}); });
}

void OstrelProperties::ClearProperties() {
    guard_([&] { pairs_.clear(); });
}

void OstrelProperties::SetHeightWidth(Long Height, Long Width) {
    height_ = Height;
    width_ = Width;
}

void OstrelProperties::Show(Long Arg1, Long Arg2, Long Arg3) {
    guard_([&] {
        const Long count = static_cast<Long>(pairs_.size());
        Array<Text> names(count), values(count);
        for (Long i = 1; i <= count; ++i) {
            *names.Find(i) = pairs_[static_cast<std::size_t>(i - 1)].name;
            *values.Find(i) = pairs_[static_cast<std::size_t>(i - 1)].value;
        }
        ShowProperties(Arg1, Arg2, Arg3, count, names, values);
    });
}

void OstrelProperties::ShowProperties(Long Arg1, Long Arg2, Long Arg3, Long Count, Array<Text>& Names,
                                      const Array<Text>& Values) {
    guard_([&] {
        PropertiesForm form;
        if (!caption_.empty()) form.caption = caption_;
        if (height_ > 0) form.height = height_;
        if (width_ > 0) form.width = width_;
        std::vector<std::vector<Text>>& rows = form.grdData.rows.Change();
        const Long count = std::min({Count, Names.Count(), Values.Count()});
        for (Long i = 1; i <= count; ++i) {
            Text& name = *Names.Find(i);
            if (!name.empty() && !name.ends_with(':')) name += ':';
            rows.push_back({name, *Values.Find(i)});
        }
        const Context context{events_, platform_, run_};
        DialogProperties properties;
        properties.Icon = icon_;
        properties.DialogOnTop = Arg3 != 0;
        ShowDialog({context, properties}, form, At{.left = Arg2, .top = Arg1});
    });
}

Picture OstrelProperties::GetIcon() const {
    return guard_.Read([&] { return Picture(icon_); });
}

void OstrelProperties::SetIcon(const Picture& Value) {
    guard_([&] { icon_ = Value; });
}

void OstrelProperties::ReadProperties(const Bag& bag) {
    guard_([&] {
        const auto value = bag.Read("Icon");
        icon_ = {};
        if (!value) return;
        if (const Picture* picture = std::get_if<Picture>(&*value)) icon_ = *picture;
        if (const Text* path = std::get_if<Text>(&*value)) icon_ = Picture{*path};
    });
}

void OstrelProperties::WriteProperties(Bag& bag) {
    guard_([&] {
        if (icon_.path.empty())
            bag.Remove("Icon");
        else
            bag.Write("Icon", icon_);
    });
}

void OstrelProperties::SetCaption(const Text& Caption) {
    guard_([&] { caption_ = Caption; });
}

} // namespace ostrel
