% What the examples of the catalogue do not show, and then these: test.m EXAMPLES
function refused(text, varargin)
  try
    quorvel(varargin{:});
  catch fault
    assert(fault.message, text);
    return;
  end
  error("not refused: %s", text);
end

assert(quorvel('saturation_pressure', [20 30; 0 -40])(2, 1), quorvel('saturation_pressure', 0));
assert(size(quorvel('saturation_pressure', zeros(2, 3, 4))), [2 3 4]);
assert(quorvel('PSSVP', 20), quorvel('saturation_pressure', 20));  % either name
assert(quorvel('dot_product', [1 2 3; 4 5 6]', [1 1 1]), [6 15]);
assert(quorvel('u_value', [0.1 0.2], [1 0.04], [0.13 0.1], 0.04)(2) > 0);
[transmittance, shares] = quorvel('unit_direct_shares', 0.5, 0.1, 0.3, 3);
assert(size(shares), [3 1]);
refused('quorvel: there is no routine solar', 'solar');
refused('quorvel: relative_humidity is not given', 'vapour_pressure', 20);
refused('quorvel: latent_heat takes 1 arguments', 'latent_heat', 20, 30);
refused('quorvel: relative_humidity has 3 elements and another argument 2', 'vapour_pressure', [1 2], [1 2 3]);
refused('quorvel: conductivity has 3 layers and another list 2', 'u_value', [1 2], [1 2 3], 1, 1);
refused('quorvel: month is 2.5, which is no whole number of 32 bits', 'design_day', 2.5);
refused('quorvel: u_value: layers must be from 0 to 20', 'u_value', ones(1, 21), ones(1, 21), 1, 1);
source(argv(){end});
