"""The functions in an office: the examples of the catalogue, what the function wizard has, and how cells behave."""

import math
import os
import struct
import unittest
from pathlib import Path

import catalogue
import quorvel_calc
from office import Office, block, properties, shown
from languages import calc_binding
from quorvel_calc.evaluation import Evaluation

OUT = Path(os.environ["QUORVEL_OUT"])
FAMILIES = catalogue.load(Path(catalogue.__file__).parents[1] / "catalogue")
EXAMPLES = [(call, example) for call in calc_binding.calls(FAMILIES) if not calc_binding.needs_file(call)
            for example in call.routine.examples]
CLIMATE_FILE = "Zürich – Böen.dat"


def setUpModule():
    global office, document, sheet
    office = Office(OUT, OUT / "quorvel.oxt")
    document = office.document()
    sheet = document.Sheets.getByIndex(0)


def tearDownModule():
    document.close(True)
    office.close()


def rows_of(value, parameter):
    """A value of an example as rows of cells."""
    if not parameter.shape:
        return ((value,),)
    width = parameter.shape[0] if len(parameter.shape) == 2 else 1
    rows = [tuple(value[k:k + width]) for k in range(0, len(value), width)]
    return tuple(zip(*rows)) if parameter.turned else tuple(rows) or (("",),)


def given(call, example):
    """The arguments of an example: rows of cells, with selectors by their words."""
    for own, parameter in zip(call.parameters, quorvel_calc.ROUTINES[call.name].parameters):
        value = example.given[own.name]
        words = {number: word for word, number in parameter.words.items()}
        yield ((words[value],),) if not parameter.shape and value in words else rows_of(value, parameter)


def written(rows):
    """As a formula has them."""
    cells = [[f'"{cell}"' if isinstance(cell, str) else repr(float(cell)) for cell in row] for row in rows]
    text = "|".join(";".join(row) for row in cells)
    return text if len(cells) == len(cells[0]) == 1 else f"{{{text}}}"


def bits(table):
    """Errors and blank cells are told apart by Calc's own texts elsewhere."""
    return [[struct.pack("<d", cell) if not isinstance(cell, str) and math.isfinite(cell) else None for cell in row]
            for row in table]


class Examples(unittest.TestCase):
    def test_examples_give_their_results_and_come_back_from_a_file(self):
        self.assertGreater(len(EXAMPLES), 150)
        places, row = [], 0
        for call, example in EXAMPLES:
            arguments = tuple(given(call, example))
            formula, table = self.formula_and_table(call.name, arguments)
            sheet.getCellRangeByPosition(0, row, len(table[0]) - 1, row + len(table) - 1).setArrayFormula(formula)
            places.append((call, example, arguments, row, table))
            row += len(table)
        for place in places:
            with self.subTest(place[0].name):
                self.compare_with_example(*place[:3])
                self.compare_cells(sheet, *place[3:])
        url = (OUT / "examples.ods").as_uri()
        document.storeToURL(url, properties(FilterName="calc8"))
        again = office.document(url)
        again.calculateAll()
        for call, _, _, row, table in places:
            with self.subTest(call.name, file=True):
                self.compare_cells(again.Sheets.getByIndex(0), row, table)
        again.close(True)

    @staticmethod
    def formula_and_table(name, arguments):
        """Unchecked where an example shows what a routine makes of values outside the ranges."""
        checked = not any(text for texts in quorvel_calc.why(name, arguments) for text in texts)
        listed = ";".join(map(written, arguments))
        formula = f"={name.upper()}({listed})" if checked else f'=QUORVEL_UNCHECKED("{name}";{listed})'
        return formula, quorvel_calc.table(name, arguments, checked=checked)

    def compare_with_example(self, call, example, arguments):
        element, = Evaluation(quorvel_calc.ROUTINES[call.name], arguments, checked=False).elements
        for result, numbers in zip(call.results, element):
            wanted = example.gives.get(result.name, [])
            for got, want in zip(numbers, wanted if isinstance(wanted, list) else [wanted]):
                self.assertLessEqual(abs(got - want), example.within[result.name])

    def compare_cells(self, of, row, table):
        self.assertEqual(bits(block(of, row, len(table), len(table[0]))), bits(table))


class Wizard(unittest.TestCase):
    def test_each_function_is_explained_and_has_its_name_for_itself(self):
        descriptions = office.service("com.sun.star.sheet.FunctionDescriptions")
        shown_functions = [{each.Name: each.Value for each in descriptions.getByIndex(k)} for k in range(descriptions.Count)]
        names = [each["Name"] for each in shown_functions]
        for function in calc_binding.functions(FAMILIES):
            name = function.name.upper()
            self.assertEqual(names.count(name), 1, name)
            described = shown_functions[names.index(name)]
            self.assertEqual(described["Description"], function.text)
            visible = [each for each in function.parameters if each.text]
            self.assertEqual([(each.Name, each.Description) for each in described["Arguments"]],
                             [(each.name.replace("_", " "), each.text) for each in visible])

    def test_units_ranges_and_what_may_be_left_out(self):
        functions = {function.name: function for function in calc_binding.functions(FAMILIES)}
        *_, pressure, psychrometer = functions["vapour_pressure_from_psychrometer"].parameters
        self.assertEqual(pressure.text, "atmospheric pressure [Pa]; valid 50000 to 110000; 101325 unless given")
        self.assertIn('2 or "screen"', psychrometer.text)


class Cells(unittest.TestCase):
    """Values from column 100 on, where the examples are not, and formulas from column 110 on."""

    @staticmethod
    def clear():
        sheet.getCellRangeByPosition(110, 0, 140, 60).clearContents(1023)

    def put(self, column, values):
        for row, value in enumerate(values):
            cell = sheet.getCellByPosition(column, row)
            if isinstance(value, str):
                cell.Formula = value
            else:
                cell.Value = value

    def array(self, formula, height, width):
        self.clear()
        sheet.getCellRangeByPosition(110, 0, 110 + width - 1, height - 1).setArrayFormula(formula)
        return block(sheet, 0, height, width, 110)

    def single(self, formula):
        self.clear()
        sheet.getCellByPosition(110, 0).Formula = formula
        return shown(sheet, 110, 0)

    def test_errors_stay_in_their_cells_and_why_tells_them(self):
        self.put(100, [20, 300, "warm", "", 0])  # from CW1
        saturation = self.single("=SATURATION_PRESSURE(20)")
        self.assertAlmostEqual(saturation, 2335.53, 2)
        self.assertEqual(self.array("=SATURATION_PRESSURE(CW1:CW5)", 4, 1), [[saturation], ["Err:502"], ["#VALUE!"], ["#N/A"]])
        self.assertEqual(self.array('=QUORVEL_WHY("saturation_pressure";CW1:CW5)', 4, 1), [
            [""], ["temperature is 300 °C; valid from -100 to 200"], ['temperature is the text "warm"'], ["temperature is blank"]])
        self.assertEqual(self.single("=SUM(SATURATION_PRESSURE(CW1:CW2))"), "Err:502")
        self.assertEqual(self.single("=IFERROR(SATURATION_PRESSURE(CW2);-1)"), -1)
        self.assertEqual(self.single("=SATURATION_PRESSURE(1/0)"), "#DIV/0!")

    def test_what_concerns_the_whole_call(self):
        for formula, why in [
            ('"u_value";{0.1;0.2};{1;2;3};0.13;0.04', "thickness has 2 layers and conductivity 3"),
            ('"vapour_pressure";{1;2};{1;2;3}', "dry_bulb has 2 columns and relative_humidity 3"),
            ('"vapour_pressure";20', "relative_humidity is not given"),
            ('"latent_heat";20;30', "there are more than the 1 arguments of latent_heat"),
            ('"glass_direct";0.8;0.1;{0;1|0;1}', "glass_direct gives several results: it takes one row or one column of values"),
            ('"plan_area";{1;2};{1;2}', "plan_area: vertices must be at least 3"),
            ('"rectangular";{1;2}', "quadrilateral needs a range of 4 rows and 3 columns"),
            ('"solar"', "there is no function solar"),
        ]:
            self.assertEqual(self.single(f"=QUORVEL_WHY({formula})"), why)
        self.assertEqual(self.single("=U_VALUE({0.1;0.2};{1;2;3};0.13;0.04)"), "Err:504")

    def test_ranges_go_together_as_in_arithmetic(self):
        by_hand = [[self.single(f"=VAPOUR_PRESSURE({t};{rh})") for rh in (40, 50, 60)] for t in (10, 20)]
        self.assertEqual(self.array("=VAPOUR_PRESSURE({10|20};{40;50;60})", 2, 3), by_hand)
        down = self.array("=GLASS_DIRECT(0.8;0.08;{0|0.5|1})", 3, 6)
        self.assertEqual(self.array("=GLASS_DIRECT(0.8;0.08;{0;0.5;1})", 6, 3), [list(row) for row in zip(*down)])
        self.assertEqual(self.array("=DOT_PRODUCT({1;2;3|4;5;6};{1|1|1})", 2, 1), [[6], [15]])

    def test_layers_end_where_the_range_is_blank(self):
        self.put(100, [0.1, 0.05, "", "=\"\""])
        self.put(101, [1.0, 0.04])
        self.assertEqual(self.single("=U_VALUE(CW1:CW4;CX1:CX4;0.13;0.04)"), self.single("=U_VALUE({0.1|0.05};{1|0.04};0.13;0.04)"))

    def test_matrices_are_those_of_calc(self):
        product = self.array("=MMULT(INDEX(SURFACE_AXES(1;0.5);{1|2|3};{1;2;3});INDEX(SURFACE_AXES(1;0.5);{1|2|3};{4;5;6}))", 3, 3)
        for row, numbers in enumerate(product):
            for column, number in enumerate(numbers):
                self.assertAlmostEqual(number, row == column, 6)
        axis = self.array("=LOCAL_TO_GLOBAL({0;0;1};INDEX(SURFACE_AXES(1;0.5);{1|2|3};{1;2;3}))", 1, 3)
        column = self.array("=INDEX(SURFACE_AXES(1;0.5);{1|2|3};3)", 3, 1)
        self.assertEqual(axis, [[number for number, in column]])
        self.assertEqual(self.array("=LOCAL_TO_GLOBAL({0;0;1|0;0;1};INDEX(SURFACE_AXES(1;0.5);{1|2|3};{1;2;3}))", 2, 3), 2 * axis)

    def test_unchecked_and_what_does_not_exist(self):
        parallel = "{0;0};{1;0};{0;1};{1;1}"
        self.assertEqual(self.array(f"=MEETING_POINT({parallel})", 1, 2), [["#N/A", "#N/A"]])
        self.assertAlmostEqual(self.single(f'=QUORVEL_UNCHECKED("meeting_point";{parallel})') / 1e20, 1, 6)
        self.assertGreater(self.single('=QUORVEL_UNCHECKED("saturation_pressure";300)'), 1e6)

    def test_left_out_arguments(self):
        whole = self.single('=VAPOUR_PRESSURE_FROM_PSYCHROMETER(25;20;101325;1)')
        for rest in ("", ";101325", ";101325;", ';;" Sling"'):
            self.assertEqual(self.single(f"=VAPOUR_PRESSURE_FROM_PSYCHROMETER(25;20{rest})"), whole)

    def test_clipped_polygons(self):
        square, shifted = "{0;0|0;2|2;2|2;0}", "{1;1|1;3|3;3|3;1}"
        overlap = self.array(f'=CLIP({square};{shifted};"overlap")', 4, 3)
        self.assertEqual(sorted(map(tuple, overlap)), [(1, 1, 1), (1, 1, 2), (1, 2, 1), (1, 2, 2)])
        self.assertEqual(self.single(f'=CLIP({square};{{5;5|6;5|6;6}};"overlap")'), "#N/A")
        self.assertEqual(self.single(f'=QUORVEL_WHY("clip";{{0;0|1;1|0;1|1;0}};{square};2)'), "a crosses itself")

    def test_climate_data_file_beside_the_document(self):
        words = [float(k % 977) / 8 for k in range(108 * 21)]
        header = struct.pack("<2i", 0, 0) + bytes(424)  # its second word lets station 1 begin at record 3
        (OUT / CLIMATE_FILE).write_bytes(header + struct.pack(f"<{len(words) - 108}f", *words[108:]))
        rows = [words[216 + 12 * k:228 + 12 * k] for k in range(171)]
        document.storeAsURL((OUT / "climate.ods").as_uri(), properties(FilterName="calc8", Overwrite=True))
        self.assertEqual(self.array(f'=STATION_ROW("{CLIMATE_FILE}";1;100)', 12, 1), [[number] for number in rows[99]])
        months = self.array(f'=STATION_CLIMATE("{CLIMATE_FILE}";1;4;{{1|2|12}};"second";0)', 3, 9)
        for month, got in zip((0, 1, 11), months):
            quantities = [rows[82 + 12 + 10 * q + 3][month] for q in range(7)]
            self.assertEqual(got, [*quantities[:6], min(quantities[6], 1), rows[82][month], rows[83][month]])
        self.assertEqual(self.single(f'=STATION_ROW("{CLIMATE_FILE}";2;1)'), "#N/A")
        self.assertEqual(self.array(f'=QUORVEL_WHY("locate_station_band";"{CLIMATE_FILE}";{{1;2}};1;0.5;1)', 1, 2), [
            ["", f"station 2 cannot be read from {CLIMATE_FILE}"]])
        self.assertEqual(self.single('=QUORVEL_WHY("station_row";"none";1;1)'), "there is no climate data file none")


if __name__ == "__main__":
    unittest.main()
