/* quorvel.h in C, which no other program of the tree reads, and a host that is linked with the library. */
#include <quorvel.h>

int main(void) {
    const float t = 20.0f, rh = 50.0f;
    const float half_of_saturation = PSVP(&t, &rh);
    return !(half_of_saturation > 1167.0f && half_of_saturation < 1169.0f);
}
