[Contour(0)]
Level     = -50.000000
Color     = 0
TrueColor = 0
LineType  = CONTINUOUS
LineWidth = 0.350000
Annotate  = 1

[Contour(1)]
Level     = -40.000000
Color     = 0
TrueColor = 0
LineType  = CONTINUOUS
LineWidth = 0.180000
Annotate  = 0

[Contour(2)]
Level     = -30.000000
Color     = 0
TrueColor = 0
LineType  = CONTINUOUS
LineWidth = 0.180000
Annotate  = 0

[Contour(3)]
Level     = -20.000000
Color     = 0
TrueColor = 0
LineType  = CONTINUOUS
LineWidth = 0.180000
Annotate  = 0

[Contour(4)]
Level     = -10.000000
Color     = 0
TrueColor = 0
LineType  = CONTINUOUS
LineWidth = 0.180000
Annotate  = 0

[Contour(5)]
Level     = 0.000000
Color     = 0
TrueColor = 0
LineType  = CONTINUOUS
LineWidth = 0.350000
Annotate  = 1

