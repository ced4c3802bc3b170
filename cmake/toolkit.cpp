// The translation unit for which the toolkit's headers are compiled once; holds nothing.
