#include "UI/FxUIObject.h"
#include "UI/FxUISignal.h"

#include <iostream>

class Thermostat : public CFxUIObject {
public:
    CFxUISignal<void(int)> &changed() { return m_changed; }

    void set(int degrees) { m_changed(degrees); } // as emit(), also beside Qt's macro of that name

private:
    CFxUISignal<void(int)> m_changed { this };
};

int main()
{
    Thermostat thermostat;

    // A slot is any callable; the connection may be kept or dropped.
    auto display = thermostat.changed().connect(
        [](int degrees) { std::cout << "display: " << degrees << '\n'; });
    thermostat.set(19);

    { // A scoped connection takes its slot along.
        const slimsig::scoped_connection log = thermostat.changed().connect(
            [](int degrees) { std::cout << "log: " << degrees << '\n'; });
        thermostat.set(20);
    }

    // A slot may disconnect itself, and connect others: they are called from the next emission on.
    slimsig::connection<void(int)> once;
    once = thermostat.changed().connect([&](int) {
        std::cout << "once\n";
        once.disconnect();
        thermostat.changed().connect([](int) { std::cout << "from now on\n"; });
    });
    thermostat.set(21);
    thermostat.set(22);

    thermostat.blockSignals(true); // an object's signals are silenced together
    thermostat.set(23);
    thermostat.blockSignals(false);

    display.disconnect();
    std::cout << "slots left: " << thermostat.changed().num_slots() << '\n';
}
